#pragma once

#include <QQuickImageProvider>

namespace velto {

class ApplicationInfoProviding;

// Serves image://veltoappicon/<identity>: the application's icon from the icon theme or its image file, the
// theme's generic application icon when it has none or is not installed, and a blank image only when even
// that is missing. Runs on the QML image thread.
class ApplicationIconProvider final : public QQuickImageProvider {
public:
    // Names Velto's own icon rather than another application's.
    static constexpr QStringView ownIconId = u"@velto";

    explicit ApplicationIconProvider(const ApplicationInfoProviding* applications);

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    const ApplicationInfoProviding* m_applications = nullptr;
};

} // namespace velto
