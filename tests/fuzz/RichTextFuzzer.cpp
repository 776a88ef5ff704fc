#include "platform/appkit/richtext/NSAttributedString.h"

#include <QGuiApplication>
#include <QTextDocument>
#include <cstdlib>

// Whatever was read is well-formed text, no longer than what it was read from, and takes the marker's replacement.

namespace {

void startApplication()
{
    static int count = 1;
    static char name[] = "RichTextFuzzer";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(count, arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    startApplication();
    const QByteArray data(reinterpret_cast<const char *>(bytes), qsizetype(size));
    NSAttributedString text = NSAttributedString::fromRTF(data, QStringLiteral("/usr/share/pixmaps"));
    if (!text.string().isValidUtf16() || text.string().size() > data.size())
        std::abort();
    text.replaceOccurrencesOfStringWithString(QStringLiteral("<<copyright>>"), QStringLiteral("Copyright"));
    if (text.string().contains(QStringLiteral("<<copyright>>")) || text.document()->isEmpty() != text.isEmpty())
        std::abort();
    return 0;
}
