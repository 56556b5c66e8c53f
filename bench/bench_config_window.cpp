// The configuration window with every page: constructing it, opening a terminal's full
// configuration, a keystroke's edit with the unsaved mark, compare and save, each beside the
// serializer's own load (or save) of the same file in the same run. Prints plain lines.
#include "config_model/config_session.h"
#include "config_model/serialize.h"
#include "config_ui/zrk_widget_config.h"
#include "translations/catalogue.h"

#include <QApplication>
#include <QSpinBox>
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
    const double open = bestSeconds(kRuns, [&] { ok = window.openFile(source) && ok; });
    zrk::ConfigSession alone;
    const double sessionLoad
        = bestSeconds(kRuns, [&] { ok = alone.loadFile(source, zrk::ConfigSource::File) && ok; });
    const double snapshot = bestSeconds(kRuns, [&] { ok = alone.snapshot() != nullptr && ok; });
    const double serializerLoad = bestSeconds(kRuns, [&] {
        CSerialize doc(source);
        ok = doc.startSerialize() && ok;
    });
    // A keystroke in a number box: the edit, its undo step and the unsaved mark in the title.
    auto* distance = window.findChild<QSpinBox*>(QStringLiteral("Additional_spinBox_Distance"));
    int step = 0;
    const double keystroke = bestSeconds(kRuns * 10, [&] {
        distance->setValue(1000 + (++step % 2));
        ok = window.isModified() && ok;
    });
    const double compare = bestSeconds(kRuns, [&] {
        bool compared = false;
        window.compareWithFile(source, &compared);
        ok = compared && ok;
    });
    const double save = bestSeconds(kRuns, [&] { ok = window.saveFile(out) && ok; });
    CSerialize loaded(source);
    loaded.startSerialize();
    const double serializerSave = bestSeconds(kRuns, [&] { ok = loaded.saveAs(ref) && ok; });
    if (!ok) {
        std::printf("a load, edit, compare or save failed\n");
        return 1;
    }

    auto ms = [](double s) { return s * 1000.0; };
    auto ratio = [](const char* what, double value, double goal) {
        std::printf(
            "ratio %s: %.2f (goal <= %.2f) %s\n", what, value, goal, value <= goal ? "met" : "NOT met");
    };
    std::printf("file: %s\n", qPrintable(source));
    std::printf("construct window with every page: first %.1f ms, best %.1f ms (goal < 300 ms) %s\n",
        ms(firstConstruct), ms(construct), std::max(firstConstruct, construct) < 0.3 ? "met" : "NOT met");
    std::printf("serializer load (reference): %.3f ms\n", ms(serializerLoad));
    std::printf("open through the window (one undoable step, every page shown): %.3f ms\n", ms(open));
    std::printf("  of which the configuration alone: %.3f ms; a snapshot for undo: %.3f ms\n",
        ms(sessionLoad), ms(snapshot));
    std::printf("keystroke (edit, undo step, unsaved mark): %.4f ms\n", ms(keystroke));
    std::printf("compare with the same file: %.3f ms\n", ms(compare));
    std::printf("save: %.3f ms; serializer save (reference): %.3f ms\n", ms(save), ms(serializerSave));
    ratio("open/serializer load", open / serializerLoad, 2.0);
    ratio("keystroke/serializer load", keystroke / serializerLoad, 2.0);
    ratio("compare/serializer load", compare / serializerLoad, 2.0);
    ratio("save/serializer save", save / serializerSave, 5.0);
    return 0;
}
