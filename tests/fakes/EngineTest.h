#pragma once

// The world of a test class whose every function wants a call engine: made anew for each function and ended behind it.
// Derive the test class from EngineTest. GUI thread.

#include "fakes/EngineFixture.h"

#include <QObject>

#include <memory>

class EngineTestSlots : public QObject
{
    Q_OBJECT

protected:
    virtual void make(EngineFixture::Start start) = 0;
    virtual void end() = 0;

private slots:
    void init() { make(EngineFixture::WithCallProcess); }
    void cleanup() { end(); }
};

/// `Engine` is EngineFixture or derived from it.
template <typename Engine>
class EngineTest : public EngineTestSlots
{
protected:
    /// Ends the engine that stands and makes another one, for a function that wants another start.
    void begin(EngineFixture::Start start = EngineFixture::WithCallProcess) { make(start); }

    std::unique_ptr<Engine> m_f;

private:
    void make(EngineFixture::Start start) override
    {
        // Only one engine has the socket's name at a time.
        m_f.reset();
        m_f = std::make_unique<Engine>(start);
    }
    void end() override { m_f.reset(); }
};
