#pragma once

#include <QList>
#include <QString>

/// What the user may ask of the tutorial with a button.
enum class Wish : quint8 { None, StartAgent, UseModifiers, AskAgain, GoBack, Skip, StartOver, Leave };

/// What the guide shows at a time; plain data.
struct GuidePage
{
    struct Cap
    {
        QString text;
        bool isKey = true; ///< else what stands between keys

        bool operator==(const Cap &) const = default;
    };
    struct Button
    {
        Wish wish = Wish::None;
        QString text = {};

        bool operator==(const Button &) const = default;
    };
    enum class Tone : quint8 { Plain, Good, Hint };

    int number = 0; ///< of the step, counted from 1; 0 where it is none
    int count = 0; ///< of the steps
    QString title;
    QList<Cap> caps = {};
    QString text = {};
    QString remark = {}; ///< how it goes
    Tone tone = Tone::Plain;
    Button first = {}; ///< what Return does
    Button second = {};
    Button skip = {};
    bool canGoBack = false;

    bool operator==(const GuidePage &) const = default;
};
