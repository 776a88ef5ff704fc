#pragma once

#include "platform/foundation/system/X11.h"

#include <QImage>
#include <QRect>
#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <optional>

/// What its program says of a window.
struct LivingWindowKind
{
    quint8 depth = 24; ///< or 32, with an alpha
    bool isDecorated = false;
    int shadow = 0; ///< that it draws by itself around what is seen of it
    bool canBeAskedToClose = true;
    quint32 processID = 0; ///< that it tells
    quint32 parent = 0; ///< the window that it is a dialog of
};

/// A window of another program that draws itself whenever the server asks it to, and hears when it is to close. The
/// server keeps nothing of it: what is covered is lost until it is drawn again. Gone with the object.
class LivingWindow
{
public:
    LivingWindow(const QString &title, const QRect &place, const LivingWindowKind &kind = {});
    LivingWindow(const LivingWindow &) = delete;
    LivingWindow &operator=(const LivingWindow &) = delete;
    ~LivingWindow();

    quint32 id() const { return id_; }
    /// Waits until it is managed and has drawn itself; false when that does not come about.
    bool show();
    /// What it draws: each pixel by its place, so that any part tells where it is from.
    static QRgb colorAt(QPoint place, quint8 depth = 24);
    /// Draws all of it anew; with a plain colour where one is told.
    void draw(std::optional<QRgb> plain = std::nullopt);
    void resize(QSize size);
    /// As its program does by itself.
    void close();
    /// What happens when it is asked to close; by default it closes.
    void whenAskedToClose(std::function<void()> act) { whenAskedToClose_ = std::move(act); }
    /// From now on its program does nothing any more.
    void hang() { input_.setEnabled(false); }

private:
    void handleEvents();
    void setProperties(const QString &title);
    void setNumbers(const char *property, const char *type, const QList<quint32> &values);

    const XConnection connection_;
    const quint32 id_;
    const LivingWindowKind kind_;
    QSize size_;
    std::optional<QRgb> plain_;
    quint32 context_ = 0;
    bool hasDrawn_ = false;
    std::function<void()> whenAskedToClose_;
    QSocketNotifier input_;
};
