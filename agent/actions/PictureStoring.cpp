#include "agent/actions/PictureStoring.h"

#include "platform/foundation/bundles/NSBundle.h"

#include <QFile>

namespace {

QStringList numbersOf(const WindowPixels &pixels)
{
    QStringList texts;
    for (const quint32 number : {quint32(pixels.size.width()), quint32(pixels.size.height()), pixels.rowBytes,
             pixels.pixelBits, pixels.red, pixels.green, pixels.blue, pixels.alpha, quint32(pixels.isLittleEndian)})
        texts += QString::number(number);
    return texts;
}

} // namespace

PictureStoring::PictureStoring(const QString &program) : program_(program)
{
    connect(&process_, &QProcess::finished, this, &PictureStoring::handleEnd);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Q_EMIT failed(0);
    });
}

PictureStoring::~PictureStoring()
{
    process_.disconnect(this);
}

QString PictureStoring::builtInProgram()
{
    return NSBundle::mainBundle()->pathForResourceOfType(QStringLiteral("screenshot"), {});
}

void PictureStoring::begin(WindowPixels pixels, const QString &folder, const QString &name)
{
    pixels_ = std::move(pixels);
    process_.setStandardInputFile(QStringLiteral("/proc/self/fd/%1").arg(pixels_.memory.get()));
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(program_, QStringList{folder, name} + numbersOf(pixels_));
}

void PictureStoring::handleEnd(int status, QProcess::ExitStatus exit)
{
    const QByteArray output = process_.readAllStandardOutput();
    if (exit == QProcess::NormalExit && status == 0)
        Q_EMIT stored(QFile::decodeName(output));
    else
        Q_EMIT failed(exit == QProcess::NormalExit ? output.toInt() : 0);
}
