#include "support/TestProgram.h"

#include "common/log/QtWarningFilter.h"

#include <QApplication>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

std::vector<TestClass> &testClasses()
{
    static std::vector<TestClass> s_classes;
    return s_classes;
}

const TestClass *testClassOf(const char *name)
{
    const std::vector<TestClass> &classes = testClasses();
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [name](const TestClass &one) { return std::strcmp(one.name, name) == 0; });
    return found == classes.end() ? nullptr : &*found;
}

std::unique_ptr<QCoreApplication> surroundingsOf(const TestClass &testClass, int &argc, char **argv)
{
    std::unique_ptr<QCoreApplication> application;
    switch (testClass.surroundings) {
    case TestSurroundings::Appless:
        return nullptr;
    case TestSurroundings::Guiless:
        application = std::make_unique<QCoreApplication>(argc, argv);
        break;
    case TestSurroundings::Widgets:
        application = std::make_unique<QApplication>(argc, argv);
        break;
    }
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    return application;
}

/// Runs what QTest::qInit has prepared. QTest's own handler of messages stands already, so the filter is asked first.
int runFiltered()
{
    const QtWarningFilter filter;
    return QTest::qRun();
}

int usage(const char *program)
{
    std::fprintf(stderr, "usage: %s CLASS [ARGUMENTS OF QT TEST...]\n\nIts classes:\n", program);
    for (const TestClass &testClass : testClasses()) {
        std::fprintf(stderr, "  %s\n", testClass.name);
    }
    return 2;
}

} // namespace

bool enterTestClass(const TestClass &testClass)
{
    testClasses().push_back(testClass);
    return true;
}

int main(int argc, char *argv[])
{
    const TestClass *testClass = argc < 2 ? nullptr : testClassOf(argv[1]);
    if (!testClass) {
        return usage(argv[0]);
    }
    // The class's name is nobody's argument from here on; the null behind the last one moves too.
    std::copy(argv + 2, argv + argc + 1, argv + 1);
    --argc;
    const std::unique_ptr<QCoreApplication> application = surroundingsOf(*testClass, argc, argv);
    const std::unique_ptr<QObject> tests = testClass->make();
    QTest::setMainSourcePath(testClass->source);
    QTest::qInit(tests.get(), argc, argv);
    const int result = runFiltered();
    QTest::qCleanup();
    return result;
}
