#pragma once

#include <QString>

/// The most of release notes that is read.
inline constexpr qint64 largestReleaseNotes = qint64(256) * 1024;

/// What of a maker's release notes may be shown: headings, paragraphs, lists, emphasis, and links to web pages. No
/// picture, style, script or colour is left, and no other attribute; the elements nest properly and not deeply. Text
/// without any element keeps its lines. Never throws, never crashes on any input.
QString safeReleaseNotes(const QString &html);
