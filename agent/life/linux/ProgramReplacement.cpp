#include "agent/life/linux/ProgramReplacement.h"

#include <QFile>
#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <vector>

QString replaceProgram(const QString &program, const QStringList &arguments)
{
    std::vector<QByteArray> texts{QFile::encodeName(program)};
    for (const QString &argument : arguments)
        texts.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    execv(pointers.front(), pointers.data());
    return QString::fromLocal8Bit(std::strerror(errno));
}
