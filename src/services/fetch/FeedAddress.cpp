#include "FeedAddress.h"

#include <arpa/inet.h>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

bool isLoopbackAddress(const QString& host)
{
    const QByteArray text = host.toLatin1();
    std::array<unsigned char, 16> address{};
    if (inet_pton(AF_INET, text.constData(), address.data()) == 1)
        return address[0] == 127;
    if (inet_pton(AF_INET6, text.constData(), address.data()) != 1)
        return false;
    static constexpr std::array<unsigned char, 16> loopback{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    // ::ffff:127.x.x.x is IPv4's loopback written for IPv6.
    static constexpr std::array<unsigned char, 12> mappedPrefix{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xff};
    return address == loopback ||
           (std::equal(mappedPrefix.begin(), mappedPrefix.end(), address.begin()) && address[12] == 127);
}

} // namespace

bool isAllowedFeedUrl(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    const QString scheme = url.scheme().toLower();
    if (scheme == u"https")
        return true;
    if (scheme != u"http")
        return false;
    const QString host = url.host().toLower();
    return host == u"localhost" || isLoopbackAddress(host);
}

} // namespace velto
