#include "agent/actions/PictureName.h"

#include <QStandardPaths>

namespace {

// In bytes, of the 255 that file systems take for all of it.
constexpr qsizetype longestProgram = 120;

bool isUnsafe(QChar character)
{
    const auto category = character.category();
    return character == u'/' || category == QChar::Other_Control || category == QChar::Other_Format
        || category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
}

QString safeName(QString program)
{
    for (QChar &character : program) {
        if (isUnsafe(character))
            character = u' ';
    }
    program = program.simplified();
    // Files that begin so are hidden.
    while (program.startsWith(u'.') || program.startsWith(u' '))
        program.remove(0, 1);
    while (program.toUtf8().size() > longestProgram)
        program.chop(program.size() > 1 && program.back().isLowSurrogate() ? 2 : 1);
    return program.isEmpty() ? QStringLiteral("Window") : program;
}

} // namespace

QString pictureName(const QString &program, const QDateTime &time)
{
    return safeName(program) + time.toString(QStringLiteral(" yyyy-MM-dd 'at' HH.mm.ss"));
}

QString pictureFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation) + QStringLiteral("/Lumaroo");
}
