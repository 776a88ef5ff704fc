#include "agent/actions/Screenshot.h"

#include "agent/actions/ActionTexts.h"
#include "agent/actions/PictureName.h"
#include "agent/actions/PictureStoring.h"
#include "agent/actions/x11/PixelCopy.h"
#include "agent/gestures/GestureView.h"

#include <cerrno>

namespace {

QString sentenceOf(PictureFailure failure, const WindowDescription &window)
{
    if (failure == PictureFailure::NotPossible)
        return actionText("This X server gives no pictures of windows.");
    return actionText("“%1” was closed before there was a picture of it.").arg(titleOf(window));
}

QString sentenceOf(int error, const QString &folder)
{
    switch (error) {
    case 0:
        return actionText("The picture was not stored: %1.").arg(actionText("what stores it did not end well"));
    case ENOSPC:
    case EDQUOT:
        return actionText("The disk is full, so the picture was not stored.");
    case EACCES:
    case EPERM:
    case EROFS:
    case ENOTDIR:
        return actionText("The folder %1 cannot be written to, so the picture was not stored.").arg(folder);
    default:
        return actionText("The picture was not stored: %1.").arg(qt_error_string(error));
    }
}

} // namespace

QString reasonForNoPicture(const WindowDescription &window)
{
    if (window.windowIsIgnored == WindowIgnored::OtherDesktop)
        return actionText("“%1” is on another desktop, so it has no picture.").arg(titleOf(window));
    if (window.isMinimised)
        return actionText("“%1” is minimised, so it has no picture.").arg(titleOf(window));
    return {};
}

Screenshot::Screenshot(const WindowDescription &window)
    : window_(window), copy_(std::make_unique<PixelCopy>(window)), storing_(std::make_unique<PictureStoring>())
{
    const QString folder = pictureFolder();
    connect(copy_.get(), &PixelCopy::copied, this, &Screenshot::store, Qt::QueuedConnection);
    connect(copy_.get(), &PixelCopy::failed, this,
        [this](PictureFailure failure) { Q_EMIT failed(sentenceOf(failure, window_)); });
    connect(storing_.get(), &PictureStoring::stored, this, &Screenshot::taken);
    connect(storing_.get(), &PictureStoring::failed, this,
        [this, folder](int error) { Q_EMIT failed(sentenceOf(error, folder)); });
}

Screenshot::~Screenshot() = default;

void Screenshot::store()
{
    WindowPixels pixels = copy_->takePixels();
    // The server need not keep the window whole any more.
    copy_.reset();
    storing_->begin(std::move(pixels), pictureFolder(), pictureName(window_.appName, QDateTime::currentDateTime()));
}
