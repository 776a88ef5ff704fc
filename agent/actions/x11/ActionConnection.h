#pragma once

#include "platform/foundation/system/X11.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

/// A connection of its own for one action: whatever the action makes on the server goes with it. Each question waits
/// for its answer.
class ActionConnection : public QObject
{
    Q_OBJECT

public:
    ActionConnection();

    xcb_connection_t *server() const { return connection_.get(); }
    const xcb_screen_t *screen() const { return screen_; }
    xcb_window_t root() const { return screen_->root; }
    /// Nothing but this may be asked of one that is.
    bool isLost() const { return xcb_connection_has_error(server()) != 0; }
    void flush() const { xcb_flush(server()); }

    xcb_atom_t atom(const QByteArray &name) const;
    /// Null where the server lacks it.
    const xcb_query_extension_reply_t *extension(xcb_extension_t *which) const;
    /// By the server's clock. Not while it listens.
    xcb_timestamp_t time() const;
    /// The child of the root that holds a window, which may be itself; none where it has gone.
    xcb_window_t holderOf(xcb_window_t window) const;

    /// Tells all events from now on, but none within this call.
    void listen(std::function<void(const xcb_generic_event_t &)> handler);
    /// Has the answer to a request handled while it listens; one after the other. The handler owns the answer, which is
    /// null for an error.
    void expect(unsigned request, std::function<void(void *answer)> handler);
    /// To be called whenever an answer has been waited for while it listens: events may have come in with it.
    void lookSoon();

Q_SIGNALS:
    /// Only while it listens.
    void wasLost();

private:
    void look();
    bool takeAnswer();

    XConnection connection_;
    const xcb_screen_t *screen_ = nullptr;
    std::function<void(const xcb_generic_event_t &)> handler_;
    std::function<void(void *)> answerHandler_;
    unsigned request_ = 0; ///< whose answer is expected; 0 for none
    std::unique_ptr<QSocketNotifier> input_;
};
