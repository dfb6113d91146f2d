#pragma once

// What makes a program of test classes: `tests tst_Jid parsesAFullText -v2` runs one class as if it were a program of
// its own, the arguments behind its name are Qt Test's. One process runs one class, so nothing of another class has
// happened in it but the initialisation of what stands at file scope.

#include <QObject>

#include <memory>

/// What stands around the tests of a class, as Qt's three macros for a program of one class make it: nothing, a
/// QCoreApplication, a QApplication.
enum class TestSurroundings
{
    Appless,
    Guiless,
    Widgets
};

/// A test class as its program knows it.
struct TestClass
{
    /// The name by which it is chosen.
    const char *name;
    /// Its source, which Qt Test's findTestData starts from.
    const char *source;
    TestSurroundings surroundings;

    /// A new object of it, made once its surroundings stand.
    std::unique_ptr<QObject> (*make)();
};

/// Enters a class into this program, before main. Always true.
bool enterTestClass(const TestClass &testClass);

/// The last line of a test source before the include of its .moc: enters the class, which runs with these surroundings.
#define VOIP_TEST(Class, Surroundings)                                                                                 \
    [[maybe_unused]] static const bool isEntered_##Class =                                                             \
        enterTestClass({#Class, __FILE__, TestSurroundings::Surroundings,                                              \
                        []() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); }});
