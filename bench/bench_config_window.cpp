// The configuration window with every page: constructing it, reading a terminal's full
// configuration through the pages, and saving it, each beside the serializer's own load and save
// of the same file in the same run. Prints plain lines.
#include "config_model/serialize.h"
#include "config_ui/zrk_widget_config.h"
#include "config_ui/zrk_widget_config_full.h"
#include "translations/catalogue.h"

#include <QApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>

namespace {

double bestSeconds(int runs, const std::function<void()>& f)
{
    double best = 1e30;
    for (int i = 0; i < runs; ++i) {
        const auto t0 = std::chrono::steady_clock::now();
        f();
        const auto t1 = std::chrono::steady_clock::now();
        best = std::min(best, std::chrono::duration<double>(t1 - t0).count());
    }
    return best;
}

// The window answers no questions here.
class QuietWindow : public ZRK_Widget_Config
{
protected:
    void showMessage(const QString& text) override { std::printf("message: %s\n", qPrintable(text)); }
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    zrk::installCatalogue(QStringLiteral("ru"));
    QTemporaryDir dir;
    const QString source = QStringLiteral(ZRK_SOURCE_DIR "/host/data/terminal_config.xml");
    const QString out = dir.filePath(QStringLiteral("saved.xml"));
    const QString ref = dir.filePath(QStringLiteral("reference.xml"));
    constexpr int kRuns = 30;

    const auto c0 = std::chrono::steady_clock::now();
    auto first = std::make_unique<QuietWindow>();
    const double firstConstruct
        = std::chrono::duration<double>(std::chrono::steady_clock::now() - c0).count();
    const double construct = bestSeconds(5, [] { QuietWindow w; });

    QuietWindow window;
    bool ok = true;
    const double pagesRead = bestSeconds(kRuns, [&] { ok = window.openFile(source) && ok; });
    const double pagesOnly = bestSeconds(kRuns, [&] { ok = window.widgetFull()->OpenFileXml(source) && ok; });
    const double serializerLoad = bestSeconds(kRuns, [&] {
        CSerialize doc(source);
        ok = doc.startSerialize() && ok;
    });
    const double pagesSave = bestSeconds(kRuns, [&] { ok = window.saveFile(out) && ok; });
    CSerialize loaded(source);
    loaded.startSerialize();
    const double serializerSave = bestSeconds(kRuns, [&] { ok = loaded.saveAs(ref) && ok; });
    if (!ok) {
        std::printf("a load or save failed\n");
        return 1;
    }

    auto ms = [](double s) { return s * 1000.0; };
    std::printf("file: %s\n", qPrintable(source));
    std::printf("construct window with every page: first %.1f ms, best %.1f ms (goal < 300 ms) %s\n",
        ms(firstConstruct), ms(construct), std::max(firstConstruct, construct) < 0.3 ? "met" : "NOT met");
    std::printf(
        "open through the window (pages, kept branches, light editor, snapshot): %.3f ms\n", ms(pagesRead));
    std::printf("read through the full editor's pages alone: %.3f ms\n", ms(pagesOnly));
    std::printf("serializer load (reference): %.3f ms\n", ms(serializerLoad));
    std::printf("save through the pages: %.3f ms\n", ms(pagesSave));
    std::printf("serializer save (reference): %.3f ms\n", ms(serializerSave));
    const double readRatio = pagesOnly / serializerLoad;
    const double saveRatio = pagesSave / serializerSave;
    std::printf("ratio pages read/serializer load: %.2f (goal <= 5.00) %s\n", readRatio,
        readRatio <= 5.0 ? "met" : "NOT met");
    std::printf("ratio window open/serializer load: %.2f\n", pagesRead / serializerLoad);
    std::printf("ratio pages save/serializer save: %.2f (goal <= 5.00) %s\n", saveRatio,
        saveRatio <= 5.0 ? "met" : "NOT met");
    return 0;
}
