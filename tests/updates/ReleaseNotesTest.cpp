#include "updater/core/ReleaseNotes.h"

#include <gtest/gtest.h>

// What of a maker's release notes is shown.

namespace {

struct Notes
{
    const char *given;
    const char *shown;
};

void expectShown(const Notes &notes)
{
    EXPECT_EQ(safeReleaseNotes(QString::fromUtf8(notes.given)).toStdString(), notes.shown) << notes.given;
}

} // namespace

TEST(ReleaseNotes, keepHeadingsListsAndEmphasis)
{
    expectShown({"<h1>New</h1><p>It is <strong>fast</strong>, <em>very</em>.</p><ul><li>one</li><li>two</li></ul>",
        "<h3>New</h3><p>It is <b>fast</b>, <i>very</i>.</p><ul><li>one</li><li>two</li></ul>"});
    expectShown({"one<br>two<BR/>three", "one<br>two<br>three"});
}

TEST(ReleaseNotes, withoutAnyElementKeepTheirLines)
{
    expectShown({"one & two\nthree", "one &amp; two<br>three"});
}

TEST(ReleaseNotes, showNothingThatIsLoadedFromElsewhere)
{
    for (const char *given :
        {"<img src=\"http://192.0.2.1/picture.png\">", "<link rel=stylesheet href=\"http://x.example/\">",
            "<style>@import 'http://x.example/a.css'; p { color: white }</style>", "<script>alert('<p>')</script>",
            "<iframe src=\"http://x.example/\">text</iframe>", "<!-- <p>hidden</p> -->", "<!DOCTYPE html>",
            "<svg><image href=\"http://x.example/\"/></svg>", "<object data=\"file:///etc/passwd\">text</object>",
            "<html><head><title>Title</title><base href=\"http://x.example/\"></head></html>"}) {
        const QString shown = safeReleaseNotes(QString::fromUtf8(given));
        for (const char *trace : {"http", "file", "src", "text", "alert", "hidden", "color", "Title"})
            EXPECT_FALSE(shown.contains(QLatin1StringView(trace))) << given << " -> " << shown.toStdString();
    }
}

TEST(ReleaseNotes, loseEveryAttributeButALinkToAWebPage)
{
    expectShown({"<p style=\"color:white\" onclick='x'>text</p>", "<p>text</p>"});
    expectShown({"<a class=x href=\"https://x.example/?a=1&amp;b=2\" target=_top>page</a>",
        "<a href=\"https://x.example/?a=1&amp;b=2\">page</a>"});
    expectShown({"<a href=http://x.example/>page</a>", "<a href=\"http://x.example/\">page</a>"});
    for (const char *link : {"<a href=\"file:///etc/passwd\">page</a>", "<a href=\"javascript:x\">page</a>",
             "<a href=\"other.html\">page</a>", "<a name=x>page</a>", "<a href='http:///'>page</a>"})
        expectShown({link, "page"});
}

TEST(ReleaseNotes, nestProperlyWhateverIsGiven)
{
    expectShown({"<ul><li>one<li>two", "<ul><li>one</li><li>two</li></ul>"});
    expectShown({"<p>one<p>two", "<p>one</p><p>two</p>"});
    expectShown({"<b>one<i>two</b>three</i>", "<b>one<i>two</i></b>three"});
    expectShown({"</p>text</div>", "text"});
    expectShown({"1 < 2 <", "1 &lt; 2 &lt;"});
    expectShown({"text<p unfinished", "text"});
    expectShown({"<p title=\"a>b\">text</p>", "<p>text</p>"});
}

TEST(ReleaseNotes, nestNotDeeply)
{
    const QString shown = safeReleaseNotes(QStringLiteral("<ul>").repeated(1000) + QStringLiteral("text"));
    EXPECT_EQ(shown.count(QStringLiteral("<ul>")), 16);
    EXPECT_EQ(shown.count(QStringLiteral("</ul>")), 16);
}

TEST(ReleaseNotes, areCutWhereTheyAreTooLong)
{
    EXPECT_EQ(safeReleaseNotes(QString(2 * largestReleaseNotes, u'x')).size(), largestReleaseNotes);
}
