#include "agent/actions/PictureThread.h"

#include "agent/actions/PictureStoring.h"
#include "agent/actions/x11/PixelCopy.h"

PictureThread::~PictureThread()
{
    quit();
    wait();
}

void PictureThread::run()
{
    PictureStoring storing(order_.program);
    auto copy = std::make_unique<PixelCopy>(order_.window);
    connect(copy.get(), &PixelCopy::drawn, &storing, [this] { Q_EMIT drawn(); });
    connect(copy.get(), &PixelCopy::failed, &storing, [this](PictureFailure failure) {
        Q_EMIT notCopied(failure);
        quit();
    });
    const auto store = [&] {
        WindowPixels pixels = copy->takePixels();
        // The server need not keep the window whole any more.
        copy.reset();
        storing.begin(std::move(pixels), order_.folder, order_.name);
    };
    connect(copy.get(), &PixelCopy::copied, &storing, store, Qt::QueuedConnection);
    connect(&storing, &PictureStoring::stored, &storing, [this](const QString &path) {
        Q_EMIT stored(path);
        quit();
    });
    connect(&storing, &PictureStoring::failed, &storing, [this](int error) {
        Q_EMIT notStored(error);
        quit();
    });
    exec();
}
