#pragma once

// main() for tests that open web views: a home of their own (the web engine writes under it), no
// sandbox (the tests may run as root), and shared GL contexts set before the application exists.
#include "map/zrk_widget_map.h"

#include <QApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace zrktest {

inline int runWebTest(int argc, char* argv[], QObject* (*makeTest)())
{
    QTemporaryDir home;
    if (!home.isValid())
        return 1;
    for (const char* var :
        { "HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR" })
        qputenv(var, home.path().toLocal8Bit());
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QScopedPointer<QObject> test(makeTest());
    return QTest::qExec(test.data(), argc, argv);
}

// Waits for an asynchronous answer that a callback delivers; an invalid value on time-out.
template <typename Start> QVariant waitFor(Start start, int timeoutMs = 10000)
{
    QVariant result;
    bool done = false;
    QEventLoop loop;
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    start([&](const QVariant& v) {
        result = v;
        done = true;
        loop.quit();
    });
    if (!done)
        loop.exec();
    return result;
}

// True in the test's offscreen run (tests/CMakeLists: ALSO_OFFSCREEN), where no X display is there
// and so no OpenGL context can be made.
inline bool offscreenWithoutDisplay()
{
    return QGuiApplication::platformName() == QLatin1String("offscreen")
        && qEnvironmentVariableIsEmpty("DISPLAY");
}

// Maps made in its scope see a process without OpenGL: naturally in the offscreen run, forced
// under Xvfb, where the machine has it. The process's own answer comes back at its end.
class NoOpenGL
{
public:
    static constexpr const char* kForcedReason = "no OpenGL in this test";
    NoOpenGL()
        : m_forced(ZRK_Widget_Map::isSupported())
    {
        if (m_forced)
            ZRK_Widget_Map::forceUnsupported(QString::fromLatin1(kForcedReason));
    }
    ~NoOpenGL()
    {
        if (m_forced)
            ZRK_Widget_Map::forceUnsupported(QString());
    }
    NoOpenGL(const NoOpenGL&) = delete;
    NoOpenGL& operator=(const NoOpenGL&) = delete;
    bool forced() const { return m_forced; }

private:
    bool m_forced;
};

} // namespace zrktest

#define ZRK_WEB_TEST_MAIN(TestClass)                                                                         \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        return zrktest::runWebTest(argc, argv, []() -> QObject* { return new TestClass; });                  \
    }
