#include "agent/actions/Screenshot.h"

#include "agent/actions/ActionTexts.h"
#include "agent/actions/PictureName.h"
#include "agent/actions/PictureStoring.h"
#include "agent/actions/PictureThread.h"

#include <cerrno>

namespace {

QString sentenceOf(PictureFailure failure, const WindowDescription &window)
{
    if (failure == PictureFailure::NotPossible)
        return actionText("This X server gives no pictures of windows.");
    return actionText("“%1” was closed before there was a picture of it.").arg(shownTitle(window));
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

PictureOrder orderOf(const WindowDescription &window)
{
    return {window, PictureStoring::builtInProgram(), pictureFolder(),
        pictureName(window.appName, QDateTime::currentDateTime())};
}

} // namespace

QString reasonForNoPicture(const WindowDescription &window)
{
    if (window.windowIsIgnored == WindowIgnored::OtherDesktop)
        return actionText("“%1” is on another desktop, so it has no picture.").arg(shownTitle(window));
    if (window.isMinimised)
        return actionText("“%1” is minimised, so it has no picture.").arg(shownTitle(window));
    return {};
}

Screenshot::Screenshot(const WindowDescription &window)
    : window_(window), thread_(std::make_unique<PictureThread>(orderOf(window)))
{
    connect(thread_.get(), &PictureThread::stored, this, &Screenshot::taken);
    connect(thread_.get(), &PictureThread::notCopied, this,
        [this](PictureFailure failure) { Q_EMIT failed(sentenceOf(failure, window_)); });
    connect(thread_.get(), &PictureThread::notStored, this,
        [this, folder = pictureFolder()](int error) { Q_EMIT failed(sentenceOf(error, folder)); });
    thread_->start();
}

Screenshot::~Screenshot() = default;
