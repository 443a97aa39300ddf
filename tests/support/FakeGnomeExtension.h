#pragma once

#include "detection/GnomeExtension.h"

#include <QTimer>

// The GNOME Shell extension as the test scripts it. Answers come from the event loop, as the shell's would: a
// gathering finds `found` (none: never answers), enabling turns it into `afterEnabling` unless `enableError` is set.
class FakeGnomeExtension final : public velto::GnomeExtensionControlling {
public:
    [[nodiscard]] std::optional<velto::GnomeExtensionFacts> facts() const override { return m_gathered; }

    void refresh() override
    {
        ++refreshes;
        if (found)
            QTimer::singleShot(0, this, [this] { gather(); });
    }

    void enable(std::function<void(const QString&)> done) override
    {
        ++enables;
        QTimer::singleShot(0, this, [this, done] {
            if (enableError.isEmpty())
                found = afterEnabling;
            gather();
            done(enableError);
        });
    }

    std::optional<velto::GnomeExtensionFacts> found;
    velto::GnomeExtensionFacts afterEnabling;
    QString enableError;
    int refreshes = 0;
    int enables = 0;

private:
    void gather()
    {
        m_gathered = found;
        Q_EMIT factsGathered();
    }

    std::optional<velto::GnomeExtensionFacts> m_gathered;
};
