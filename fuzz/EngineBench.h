#pragma once

// One call engine for all inputs of a process, with a channel in memory and a host that answers. An input calls
// begin(), drives it and calls reset(), after which the engine is idle, its windows empty and closed, nothing posted.
// GUI thread.

#include "fakes/FakeHost.h"
#include "fakes/MessageBoxes.h"
#include "fakes/VoipManageProbe.h"
#include "model/CommonData.h"
#include "model/LoginData.h"
#include "model/SystemSetData.h"

#include <QPointer>

#include <memory>

class MemorySocket;

class EngineBench
{
public:
    /// The process's bench, built at the first call and never deleted.
    static EngineBench &instance();

    /// Makes the bench's context the process's; the engine has its call window from here on, or not.
    void begin(bool withWindow);

    /// Whether it has.
    bool usesWindow() const { return manager->m_pVoipWidget != nullptr; }

    /// Has the engine find `bytes` as one read of its channel. Nothing happens without a channel or bytes.
    void receive(const QByteArray &bytes);

    /// Delivers what the engine posted to the host and to its windows.
    static void deliverPosted();

    /// Takes everything back that an input has done.
    void reset();

    std::unique_ptr<VoipManageProbe> manager;
    FakeHost host;
    MessageBoxes boxes;

private:
    EngineBench();
    void openChannel();
    bool isWindowTouched() const;

    CommonData m_context;
    LoginData m_login;
    SystemSetData m_settings;
    QPointer<MemorySocket> m_pSocket;
    CVoipWidget *m_pWindow = nullptr; ///< lives on beside an engine that does without it
};
