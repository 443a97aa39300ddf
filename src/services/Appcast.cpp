#include "Appcast.h"

#include <QXmlStreamReader>

#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

QUrl urlFrom(const QString& text)
{
    const QUrl url(text.trimmed(), QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty() ? url : QUrl();
}

// The appcast's own elements may or may not carry the conventional namespace prefix; both spellings
// appear in feeds written by hand, so elements are matched by local name.
void readItem(QXmlStreamReader& xml, QList<AppcastItem>& items)
{
    AppcastItem item;
    while (xml.readNextStartElement()) {
        const auto name = xml.name();
        if (name == u"title") {
            item.title = xml.readElementText().trimmed();
        } else if (name == u"version") {
            item.version = xml.readElementText().trimmed();
        } else if (name == u"shortVersionString") {
            item.shortVersionString = xml.readElementText().trimmed();
        } else if (name == u"releaseNotesLink") {
            item.releaseNotesUrl = urlFrom(xml.readElementText());
        } else if (name == u"minimumSystemVersion") {
            item.minimumSystemVersion = xml.readElementText().trimmed();
        } else if (name == u"link") {
            item.infoUrl = urlFrom(xml.readElementText());
        } else if (name == u"enclosure") {
            // Older feeds put the versions on the enclosure instead of in elements of their own.
            for (const auto& attribute : xml.attributes()) {
                const auto attributeName = attribute.name();
                const QString value = attribute.value().toString().trimmed();
                if (attributeName == u"url")
                    item.enclosureUrl = urlFrom(value);
                else if (attributeName == u"version" && item.version.isEmpty())
                    item.version = value;
                else if (attributeName == u"shortVersionString" && item.shortVersionString.isEmpty())
                    item.shortVersionString = value;
            }
            xml.skipCurrentElement();
        } else {
            xml.skipCurrentElement();
        }
    }
    if (!item.version.isEmpty())
        items.append(item);
}

} // namespace

std::optional<QList<AppcastItem>> parseAppcast(const QByteArray& data)
{
    QXmlStreamReader xml(data);
    QList<AppcastItem> items;
    if (!xml.readNextStartElement() || xml.name() != u"rss")
        return std::nullopt;
    while (xml.readNextStartElement()) {
        if (xml.name() != u"channel") {
            xml.skipCurrentElement();
            continue;
        }
        while (xml.readNextStartElement()) {
            if (xml.name() == u"item")
                readItem(xml, items);
            else
                xml.skipCurrentElement();
        }
    }
    // Read to the end so that junk after the feed counts as malformed too.
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        return std::nullopt;
    return items;
}

namespace {

using VersionPart = std::variant<qulonglong, QString>;

QList<VersionPart> splitVersion(const QString& version)
{
    QList<VersionPart> parts;
    qsizetype i = 0;
    while (i < version.size()) {
        const QChar c = version.at(i);
        qsizetype j = i;
        if (c.isDigit()) {
            while (j < version.size() && version.at(j).isDigit())
                ++j;
            parts.append(version.mid(i, j - i).toULongLong());
        } else if (c.isLetter()) {
            while (j < version.size() && version.at(j).isLetter())
                ++j;
            parts.append(version.mid(i, j - i).toLower());
        } else {
            j = i + 1; // separators only split
        }
        i = j;
    }
    return parts;
}

} // namespace

int compareVersions(const QString& a, const QString& b)
{
    const auto left = splitVersion(a);
    const auto right = splitVersion(b);
    const qsizetype count = std::max(left.size(), right.size());
    for (qsizetype i = 0; i < count; ++i) {
        // A missing part counts as 0 against a number (2.0 == 2.0.0) and as the full release against
        // letters (2.0 > 2.0b1).
        const bool haveLeft = i < left.size();
        const bool haveRight = i < right.size();
        const VersionPart l = haveLeft ? left.at(i) : VersionPart(qulonglong(0));
        const VersionPart r = haveRight ? right.at(i) : VersionPart(qulonglong(0));
        const bool lNumber = std::holds_alternative<qulonglong>(l);
        const bool rNumber = std::holds_alternative<qulonglong>(r);
        if (!haveLeft && !rNumber)
            return 1;
        if (!haveRight && !lNumber)
            return -1;
        if (lNumber && rNumber) {
            const auto x = std::get<qulonglong>(l);
            const auto y = std::get<qulonglong>(r);
            if (x != y)
                return x < y ? -1 : 1;
        } else if (lNumber != rNumber) {
            // 1.0.1 is newer than 1.0b1: a further release number beats a pre-release tag.
            return lNumber ? 1 : -1;
        } else {
            const int c = std::get<QString>(l).compare(std::get<QString>(r));
            if (c != 0)
                return c < 0 ? -1 : 1;
        }
    }
    return 0;
}

} // namespace velto
