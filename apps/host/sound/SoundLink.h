#pragma once

#include <QObject>

#include <pulse/context.h>
#include <pulse/stream.h>
#include <pulse/thread-mainloop.h>

#include <functional>
#include <memory>

/// A connection to the sound server with a thread of its own, on which everything that comes from there is heard: a
/// server that takes clients and answers none holds nobody up. No sound server is started for it. To be made and
/// destroyed on its owner's thread; the destructor ends the connection and its thread, and nothing is heard or told any
/// more.
class SoundLink
{
public:
    /// Who hears of the connection, on its thread (or, of a failure, in the constructor).
    struct Ears
    {
        std::function<void()> ready;  ///< the server has answered: questions and streams may begin
        std::function<void()> failed; ///< there is none, or it has gone; the connection is of no more use
    };

    /// `owner` outlives it.
    SoundLink(QObject *owner, Ears ears);
    ~SoundLink();
    SoundLink(const SoundLink &) = delete;
    SoundLink &operator=(const SoundLink &) = delete;

    /// Does that on the owner's thread, in its turn, if this connection is still there then. Any thread.
    void tell(std::function<void()> what) const;

    /// The server's side; null when there was no memory for it. On the link's thread only.
    pa_context *context() const { return m_pContext.get(); }

    /// Makes the one stream of this connection, of 32 bit samples on one channel, not yet connected. On the link's
    /// thread; null when it cannot be made.
    pa_stream *makeStream(const char *pName, unsigned int rate);

private:
    struct Free
    {
        void operator()(pa_threaded_mainloop *loop) const { pa_threaded_mainloop_free(loop); }
        void operator()(pa_context *context) const;
        void operator()(pa_stream *stream) const;
    };

    static void contextChanged(pa_context *context, void *self);

    QObject *m_pOwner;
    Ears m_ears;
    std::shared_ptr<bool> m_pThere = std::make_shared<bool>(true);
    // Members go in reverse order; the destructor has ended the thread by then.
    std::unique_ptr<pa_threaded_mainloop, Free> m_pLoop;
    std::unique_ptr<pa_context, Free> m_pContext;
    std::unique_ptr<pa_stream, Free> m_pStream;
};
