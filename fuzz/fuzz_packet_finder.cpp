// The packet finder, the packet check and the reply classifier over arbitrary received bytes.
// The input is used in place (no copy with a terminating zero), so any read past its end is
// caught. Besides not crashing, the answers must agree with each other, and a packet built from
// the input must be found again intact.
#include "device/common_functions.h"

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void checkBuffer(const char* data, int size)
{
    int offset = 0, length = 0, flag = 0;
    const int found = commonFunctions::findPacketZRKB(data, size);
    const bool good = commonFunctions::isGoodPacket(data, size, offset, length, flag);
    require(offset == found);
    require(found >= -1 && found < size);
    if (!good)
        return;
    require(offset + length <= size && length >= commonFunctions::kHeaderSize);
    const QByteArray packet = QByteArray::fromRawData(data + offset, length);
    const int kind = commonFunctions::getTypeReceivePacket(packet);
    require(kind >= 0 && kind <= commonFunctions::kReplyKindCount);
    const QByteArray whole = QByteArray::fromRawData(data, size);
    require(commonFunctions::findPacket(whole) == found);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    if (size > (1u << 20))
        return 0;
    const char* data = reinterpret_cast<const char*>(bytes);
    const int n = static_cast<int>(size);
    checkBuffer(data, n);

    // A receiver: take each complete packet and go on after it.
    int consumed = 0, offset = 0, length = 0, flag = 0;
    while (commonFunctions::isGoodPacket(data + consumed, n - consumed, offset, length, flag)) {
        require(length >= commonFunctions::kHeaderSize);
        consumed += offset + length;
        require(consumed <= n);
        checkBuffer(data + consumed, n - consumed);
    }

    // The classifier on the raw bytes as if they were a packet.
    const int kind = commonFunctions::getTypeReceivePacket(QByteArray::fromRawData(data, n));
    require(kind >= 0 && kind <= commonFunctions::kReplyKindCount);

    // The input as a payload: the packet built from it is found at once and checks out.
    const QByteArray payload = QByteArray::fromRawData(data, qMin(n, commonFunctions::kMaxPayload));
    const QByteArray packet = commonFunctions::getUsbArrCommandToDevice(payload);
    require(packet.size() == commonFunctions::kHeaderSize + payload.size());
    require(commonFunctions::isGoodPacket(packet, offset, length, flag));
    require(offset == 0 && length == packet.size() && flag == 1);
    return 0;
}
