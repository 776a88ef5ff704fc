#include "DefaultsArguments.h"

namespace {

const char *const helpText =
    R"(Shows and changes the settings that Lumaroo has stored.

usage: lumaroo-defaults [OPTION...] read [KEY]
       lumaroo-defaults [OPTION...] write KEY [-TYPE] VALUE
       lumaroo-defaults [OPTION...] delete KEY
       lumaroo-defaults [OPTION...] export [FILE]
       lumaroo-defaults [OPTION...] import [FILE]

  read     prints the value of a key, or everything
  write    sets a key
  delete   removes a key
  export   writes everything as an XML property list to FILE, or to standard output
  import   takes the keys of a property list (XML or binary) from FILE, or from standard input; other keys stay as they are

  --domain NAME  the settings of NAME instead of %1
  --notify       tell the settings window and the agent of the change (write, delete, import)
  --replace      remove the keys that the imported property list does not have (import)
  --binary       write the binary form (export)
  --help         show this

Values:
  -bool    true or false, yes or no, 1 or 0
  -int     a decimal number of 64 bits
  -float   a number, stored in 32 bits
  -string  any text; this is the type where none is given
  -date    2001-02-03T04:05:06Z, or with another offset from UTC; without any it is UTC
  -data    hexadecimal digits; blanks between them do not count
  -dict    KEY TEXT KEY TEXT ..., or one argument with a dictionary as an XML property list
  -array   TEXT TEXT ...

Exit status: 0 done, 1 not done (a line on standard error says why), 2 the command line makes no sense.
)";

const QStringList &verbs()
{
    static const QStringList all{QStringLiteral("read"), QStringLiteral("write"), QStringLiteral("delete"),
        QStringLiteral("export"), QStringLiteral("import")};
    return all;
}

class Parser
{
public:
    explicit Parser(const QStringList &arguments) : arguments_(arguments) { }

    DefaultsRequest parse()
    {
        while (!arguments_.isEmpty() && request_.verb != QStringLiteral("help"))
            take(arguments_.takeFirst());
        check();
        return request_;
    }

private:
    void take(const QString &argument)
    {
        if (isOption(argument))
            takeOption(argument);
        else if (request_.verb.isEmpty())
            takeVerb(argument);
        else if (isWriting() && hasOperand_ && !request_.value.isValid())
            takeValueToWrite(argument);
        else if (argument.startsWith(u'-') && argument != QStringLiteral("-"))
            throw UsageError(QStringLiteral("unknown option %1").arg(argument));
        else if (hasOperand_)
            throw UsageError(QStringLiteral("\"%1\" is too much").arg(argument));
        else
            takeOperand(argument);
    }

    void takeOption(const QString &option)
    {
        if (option == QStringLiteral("--domain"))
            request_.domain = takeDomain();
        else if (option.startsWith(QStringLiteral("--domain=")))
            request_.domain = option.mid(option.indexOf(u'=') + 1);
        else if (option == QStringLiteral("--notify"))
            request_.notify = true;
        else if (option == QStringLiteral("--replace"))
            request_.replace = true;
        else if (option == QStringLiteral("--binary"))
            request_.binary = true;
        else
            request_.verb = QStringLiteral("help");
    }

    QString takeDomain()
    {
        if (arguments_.isEmpty())
            throw UsageError(QStringLiteral("--domain needs a name"));
        return arguments_.takeFirst();
    }

    void takeVerb(const QString &verb)
    {
        if (!verbs().contains(verb))
            throw UsageError(QStringLiteral("\"%1\" is none of %2").arg(verb, verbs().join(QStringLiteral(", "))));
        request_.verb = verb;
    }

    void takeOperand(const QString &operand)
    {
        request_.operand = operand;
        hasOperand_ = true;
    }

    void takeValueToWrite(const QString &argument)
    {
        if (!argument.startsWith(u'-'))
            request_.value = argument;
        else if (isTypeFlag(argument))
            request_.value = takeValue(argument, arguments_, isOption);
        else
            throw UsageError(
                QStringLiteral("%1 is no type; a text that begins so needs -string before it").arg(argument));
    }

    bool isWriting() const { return request_.verb == QStringLiteral("write"); }

    void check() const
    {
        const QString &verb = request_.verb;
        if (verb == QStringLiteral("help"))
            return;
        if (verb.isEmpty())
            throw UsageError(QStringLiteral("nothing to do"));
        if ((isWriting() || verb == QStringLiteral("delete")) && !hasOperand_)
            throw UsageError(QStringLiteral("%1 needs a key").arg(verb));
        if (isWriting() && !request_.value.isValid())
            throw UsageError(QStringLiteral("write needs a value"));
        if (request_.replace && verb != QStringLiteral("import"))
            throw UsageError(QStringLiteral("--replace is for import"));
        if (request_.binary && verb != QStringLiteral("export"))
            throw UsageError(QStringLiteral("--binary is for export"));
        if (request_.notify && (verb == QStringLiteral("read") || verb == QStringLiteral("export")))
            throw UsageError(QStringLiteral("--notify is for write, delete and import"));
    }

    QStringList arguments_;
    DefaultsRequest request_;
    bool hasOperand_ = false;
};

} // namespace

bool isOption(const QString &argument)
{
    static const QStringList options{QStringLiteral("--domain"), QStringLiteral("--notify"),
        QStringLiteral("--replace"), QStringLiteral("--binary"), QStringLiteral("--help"), QStringLiteral("-h")};
    return options.contains(argument) || argument.startsWith(QStringLiteral("--domain="));
}

DefaultsRequest parseDefaultsArguments(const QStringList &arguments)
{
    return Parser(arguments).parse();
}

QString defaultsHelp()
{
    return QString::fromUtf8(helpText).arg(KTXLMAppID);
}
