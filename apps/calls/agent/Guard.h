#pragma once

// The SIP library is C++ over C: what it throws must not pass through its own C frames, nor through Qt's event loop.
// Both ways into it and out of it go through here. Main thread.

#include <QtGlobal>

#include <exception>

/// Runs `action`; what it throws ends here, and `remark` is told of it.
template <class Action, class Remark>
void guarded(const Action &action, const Remark &remark) noexcept
{
    try {
        action();
    } catch (const std::exception &exception) {
        try {
            remark(exception.what());
        } catch (...) {
            qWarning("the SIP library failed, and so did the word about it");
        }
    } catch (...) {
        qWarning("the SIP library threw what is no exception");
    }
}
