#pragma once

#include <QUrl>

namespace velto {

// Where Velto fetches its update feed and release notes from: HTTPS anywhere; plain HTTP only to this machine.
[[nodiscard]] bool isAllowedFeedUrl(const QUrl& url);

} // namespace velto
