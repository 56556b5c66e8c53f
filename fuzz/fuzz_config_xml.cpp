// Loads arbitrary bytes as an in-memory configuration document, renders it back, and reads
// every element's parameters through the node facade, as the pages would.
#include "config_model/serialize.h"
#include "config_model/xml_workdata.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

namespace {

void walk(CSerialize* ser, CXmlTagV2* tag, int budget)
{
    CXMLWorkData node(ser, static_cast<void*>(tag));
    char buf[64];
    node.readInteger("id", 0);
    node.readDouble("maxHDOP", 0);
    node.readString("name", "", buf, sizeof buf);
    node.readColorString("color", QColor());
    if (budget <= 0)
        return;
    for (CXmlTagV2* child : tag->children)
        walk(ser, child, budget - 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size > 1 << 20)
        return 0;
    // An exact-size heap copy, so that any read past the input is caught.
    std::vector<unsigned char> input(data, data + size);
    coreSzCreateMemo memo {};
    memo.size = static_cast<int>(size);
    memo.data = input.empty() ? nullptr : input.data();
    zrk_StartSZMemo(&memo);
    if (!memo.handle)
        return 0;
    if (CXmlTagV2* root = memo.handle->root())
        walk(memo.handle, root, 32);
    zrk_GetSZMemo(&memo);
    std::vector<unsigned char> out(static_cast<size_t>(memo.size));
    memo.data = out.data();
    zrk_StopSZMemo(&memo);

    // What was written loads again unless a text element carried markup, which the format
    // writes unescaped; either way the second load must be clean.
    coreSzCreateMemo again { static_cast<int>(out.size()), out.data(), nullptr };
    zrk_StartSZMemo(&again);
    if (again.handle) {
        zrk_GetSZMemo(&again);
        std::vector<unsigned char> out2(static_cast<size_t>(again.size));
        again.data = out2.data();
        zrk_StopSZMemo(&again);
    }
    return 0;
}
