// Writes what documents the velto command from the parser's own command table, so none of it can drift: the
// manual page (from its template) and the bash, zsh and fish completions; and puts the desktop entry's and the
// AppStream file's texts in every language Velto speaks. Run by the build.
// Usage: velto_docs man TEMPLATE OUTPUT | bash OUTPUT | zsh OUTPUT | fish OUTPUT
//        velto_docs localize desktop|appstream TEMPLATE OUTPUT QM_FOLDER LANGUAGE...
#include "CommandLine.h"
#include "PackageTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <QTranslator>

#include <cstdio>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using velto::CommandLine;

namespace {

const QStringList globalOptions{u"-h"_s, u"--help"_s, u"-v"_s, u"--version"_s};

QString roffEscaped(QString text)
{
    text.replace(u"\\"_s, u"\\e"_s);
    text.replace(u"-"_s, u"\\-"_s);
    return text;
}

QString manCommands()
{
    QString out;
    for (const CommandLine::Spec& spec : CommandLine::commands()) {
        out += u".TP\n\\fB"_s + roffEscaped(spec.name) + u"\\fR"_s;
        if (!spec.arguments.isEmpty())
            out += u" \\fI"_s + roffEscaped(spec.arguments) + u"\\fR"_s;
        out += u'\n' + roffEscaped(CommandLine::summaryText(spec)) + u".\n"_s;
    }
    return out.trimmed();
}

QString shellQuoted(QString text)
{
    text.replace(u"'"_s, u"'\\''"_s);
    return u'\'' + text + u'\'';
}

// What may follow a command: its options and its words.
QStringList followers(const CommandLine::Spec& spec)
{
    return spec.options + spec.words;
}

QString bash()
{
    QStringList first;
    QString cases;
    for (const CommandLine::Spec& spec : CommandLine::commands()) {
        first.append(spec.name);
        if (!followers(spec).isEmpty())
            cases += u"        "_s + spec.name + u") COMPREPLY=($(compgen -W "_s +
                     shellQuoted(followers(spec).join(u' ')) + u" -- \"$cur\")) ;;\n"_s;
    }
    first += globalOptions;
    return u"# bash completion for velto, made from its command table\n"
           u"_velto() {\n"
           u"    local cur=${COMP_WORDS[COMP_CWORD]}\n"
           u"    COMPREPLY=()\n"
           u"    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
           u"        COMPREPLY=($(compgen -W "_s +
           shellQuoted(first.join(u' ')) +
           u" -- \"$cur\"))\n"
           u"    elif [ \"$COMP_CWORD\" -eq 2 ]; then\n"
           u"        case ${COMP_WORDS[1]} in\n"_s +
           cases +
           u"        esac\n"
           u"    fi\n"
           u"}\n"
           u"complete -F _velto velto\n"_s;
}

QString zsh()
{
    QString described;
    QString cases;
    for (const CommandLine::Spec& spec : CommandLine::commands()) {
        QString summary = CommandLine::summaryText(spec);
        summary.replace(u":"_s, u"\\:"_s);
        described += u"    "_s + shellQuoted(spec.name + u':' + summary) + u'\n';
        if (!followers(spec).isEmpty())
            cases += u"    "_s + spec.name + u") compadd -- "_s + followers(spec).join(u' ') + u" ;;\n"_s;
    }
    return u"#compdef velto\n"
           u"# zsh completion for velto, made from its command table\n"
           u"local -a commands\n"
           u"commands=(\n"_s +
           described +
           u")\n"
           u"if (( CURRENT == 2 )); then\n"
           u"    _describe -t commands 'velto command' commands\n"
           u"    compadd -- "_s +
           globalOptions.join(u' ') +
           u"\n"
           u"    return\n"
           u"fi\n"
           u"(( CURRENT == 3 )) || return\n"
           u"case $words[2] in\n"_s +
           cases + u"esac\n"_s;
}

QString fish()
{
    QString out = u"# fish completion for velto, made from its command table\n"
                  u"complete -c velto -f\n"
                  u"complete -c velto -n __fish_use_subcommand -s h -l help -d 'Show the help'\n"
                  u"complete -c velto -n __fish_use_subcommand -s v -l version -d 'Show the version'\n"_s;
    for (const CommandLine::Spec& spec : CommandLine::commands()) {
        out += u"complete -c velto -n __fish_use_subcommand -a "_s + spec.name + u" -d "_s +
               shellQuoted(CommandLine::summaryText(spec)) + u'\n';
        const QString after = u"complete -c velto -n '__fish_seen_subcommand_from "_s + spec.name + u"' "_s;
        for (const QString& option : spec.options)
            out += after + u"-l "_s + option.mid(2) + u'\n';
        if (!spec.words.isEmpty())
            out += after + u"-a "_s + shellQuoted(spec.words.join(u' ')) + u'\n';
    }
    return out;
}

struct Language {
    QString code;
    std::unique_ptr<QTranslator> translator;
};

// The translation of a package text in one language; empty when there is none or it says the same.
QString translated(const Language& language, const QString& source)
{
    for (const velto::PackageText& text : velto::packageTexts) {
        if (QString::fromUtf8(text.text.source) != source)
            continue;
        const QString result = language.translator->translate(text.context, text.text.source, text.text.comment);
        return result == source ? QString() : result;
    }
    return {};
}

// After each line that holds a package text, the same line in each language: `Key[de]=…` in a desktop entry,
// `<tag xml:lang="de">…</tag>` in an AppStream file.
QString localized(const QString& kind, const QString& text, const std::vector<Language>& languages)
{
    static const QRegularExpression desktopLine(u"^([A-Za-z-]+)=(.+)$"_s);
    static const QRegularExpression xmlLine(u"^(\\s*)<(\\w+)>([^<]+)</\\2>$"_s);
    QStringList out;
    for (const QString& line : text.split(u'\n')) {
        out << line;
        if (kind == u"desktop"_s) {
            const QRegularExpressionMatch match = desktopLine.match(line);
            if (!match.hasMatch())
                continue;
            for (const Language& language : languages) {
                if (const QString result = translated(language, match.captured(2)); !result.isEmpty())
                    out << match.captured(1) + u'[' + language.code + u"]="_s + result;
            }
        } else {
            const QRegularExpressionMatch match = xmlLine.match(line);
            if (!match.hasMatch())
                continue;
            QString source = match.captured(3);
            source.replace(u"&apos;"_s, u"'"_s).replace(u"&quot;"_s, u"\""_s).replace(u"&lt;"_s, u"<"_s);
            source.replace(u"&gt;"_s, u">"_s).replace(u"&amp;"_s, u"&"_s);
            for (const Language& language : languages) {
                if (const QString result = translated(language, source); !result.isEmpty())
                    out << match.captured(1) + u'<' + match.captured(2) + u" xml:lang=\""_s + language.code + u"\">"_s +
                               result.toHtmlEscaped() + u"</"_s + match.captured(2) + u'>';
            }
        }
    }
    return out.join(u'\n');
}

bool write(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
        std::fprintf(stderr, "velto_docs: cannot write %s\n", qPrintable(path));
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString kind = arguments.value(0);
    if (kind == u"man"_s && arguments.size() == 3) {
        QFile page(arguments.at(1));
        if (!page.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "velto_docs: cannot read %s\n", qPrintable(arguments.at(1)));
            return 1;
        }
        return write(arguments.at(2),
                     QString::fromUtf8(page.readAll()).replace(u"@VELTO_MAN_COMMANDS@"_s, manCommands()))
                   ? 0
                   : 1;
    }
    if (kind == u"localize"_s && arguments.size() >= 5) {
        QFile input(arguments.at(2));
        if (!input.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "velto_docs: cannot read %s\n", qPrintable(arguments.at(2)));
            return 1;
        }
        std::vector<Language> languages;
        for (const QString& code : arguments.mid(5)) {
            Language language{code, std::make_unique<QTranslator>()};
            if (!language.translator->load(arguments.at(4) + u"/velto_"_s + code + u".qm"_s)) {
                std::fprintf(stderr, "velto_docs: no translations for %s\n", qPrintable(code));
                return 1;
            }
            languages.push_back(std::move(language));
        }
        const QString text = localized(arguments.at(1), QString::fromUtf8(input.readAll()), languages);
        return write(arguments.at(3), text) ? 0 : 1;
    }
    if (arguments.size() == 2 && (kind == u"bash"_s || kind == u"zsh"_s || kind == u"fish"_s))
        return write(arguments.at(1), kind == u"bash"_s ? bash() : kind == u"zsh"_s ? zsh() : fish()) ? 0 : 1;
    std::fputs("usage: velto_docs man TEMPLATE OUTPUT | bash OUTPUT | zsh OUTPUT | fish OUTPUT\n"
               "       velto_docs localize desktop|appstream TEMPLATE OUTPUT QM_FOLDER LANGUAGE...\n",
               stderr);
    return 2;
}
