#include "platform/appkit/help/internal/RegisteredBooks.h"

#include "platform/foundation/bundles/NSBundle.h"
#include "platform/foundation/preferences/CFPreferences.h"

namespace {

const QString helpDomain = QStringLiteral("com.apple.help");
const QString registeredBooks = QStringLiteral("RegisteredBooks");
const QString bookName = QStringLiteral("id");
const QString bookPath = QStringLiteral("path");

/// What is a dictionary in an entry; anything may stand in the domain.
QList<QVariantMap> booksIn(const QVariant &entry)
{
    QList<QVariantMap> books;
    if (entry.typeId() != QMetaType::QVariantList)
        return books;
    for (const QVariant &book : entry.toList()) {
        if (book.typeId() == QMetaType::QVariantMap)
            books += book.toMap();
    }
    return books;
}

QVariantList listOf(const QList<QVariantMap> &books)
{
    return {books.cbegin(), books.cend()};
}

QVariantMap registered()
{
    const QVariant all = CFPreferencesCopyAppValue(registeredBooks, helpDomain);
    return all.typeId() == QMetaType::QVariantMap ? all.toMap() : QVariantMap();
}

} // namespace

QString textIn(const QVariantMap &dictionary, const QString &key)
{
    const QVariant value = dictionary.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

bool recordBook(const QString &name, const QString &identifier, const QString &bundlePath)
{
    QVariantMap all = registered();
    QList<QVariantMap> books = booksIn(all.value(identifier));
    const auto place = std::find_if(
        books.begin(), books.end(), [&name](const QVariantMap &book) { return textIn(book, bookName) == name; });
    const QVariantMap book{{bookName, name}, {bookPath, bundlePath}};
    if (place != books.end())
        *place = book;
    else
        books += book;
    all.insert(identifier, listOf(books));
    CFPreferencesSetAppValue(registeredBooks, all, helpDomain);
    return CFPreferencesAppSynchronize(helpDomain);
}

QStringList bundlesOfBook(const QString &name)
{
    QStringList recorded;
    QStringList loaded;
    const QVariantMap all = registered();
    for (auto entry = all.cbegin(); entry != all.cend(); ++entry) {
        for (const QVariantMap &book : booksIn(entry.value())) {
            if (name.isEmpty() || textIn(book, bookName) != name)
                continue;
            recorded += textIn(book, bookPath);
            if (const NSBundle *bundle = NSBundle::bundleWithIdentifier(entry.key()))
                loaded += bundle->bundlePath();
        }
    }
    return recorded + loaded;
}
