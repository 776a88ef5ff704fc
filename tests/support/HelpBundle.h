#pragma once

#include "TestBundle.h"

/// A bundle with a small help book, "Test Help", in English and German: pages index.html, gliding.html with the anchor
/// "landing", and weather.html.
class HelpBundle : public TestBundle
{
public:
    explicit HelpBundle(const QVariantMap &changesToInfo = {});

    QString identifier() const { return QStringLiteral("com.quorvane.Test"); }
    /// The book's file in a language.
    QString bookFile(const QString &language = QStringLiteral("en")) const;
    /// Registers the book with the help system; 0 when that succeeds.
    int registerBook() const;
};

/// Puts the small book into a bundle, in the place of any book that it has in its folder. Its page anchors.html has
/// every anchor that the pane asks for.
void writeTestBook(const TestBundle &bundle, const QString &bookFolder);

/// What the help system has registered, as the file of its domain holds it.
QVariantMap registeredBooksOnDisk();
/// Replaces all that is registered, an invalid value for none.
void setRegisteredBooks(const QVariant &books);
