#pragma once

#include "Updater.h"

#include <QDialog>
#include <QPointer>

#include <functional>

class QLabel;
class QTextBrowser;

namespace velto {

// The window of a user-initiated check: which version is available, its release notes when the feed links
// them, and the three choices. Closing it counts as "Remind Me Later".
class UpdateFoundDialog final : public QDialog {
    Q_OBJECT
public:
    UpdateFoundDialog(const AppcastItem& item, const QString& hostVersion, std::function<void(UpdateChoice)> reply,
                      QWidget* parent = nullptr);

    // Shows release notes (HTML) once they have arrived, or a line saying they could not be loaded.
    void showReleaseNotes(const QString& html);
    void showReleaseNotesUnavailable();
    [[nodiscard]] bool hasReleaseNotesArea() const { return m_notes != nullptr; }

    void done(int result) override;

private:
    void choose(UpdateChoice choice);

    std::function<void(UpdateChoice)> m_reply;
    QTextBrowser* m_notes = nullptr;
};

// Answers a check with a message and an OK button: up to date, or what went wrong.
class UpdateMessageDialog final : public QDialog {
    Q_OBJECT
public:
    UpdateMessageDialog(const QString& headline, const QString& text, QWidget* parent = nullptr);
};

// Puts the update windows on screen for the updater. Fetches release notes itself, under the same rules as
// the feed (HTTPS or this machine, size limit, time-out).
class UpdateWindowDriver final : public UpdateUserDriver {
public:
    // `fetchProgram`: velto-fetch; empty, the one installed with Velto.
    explicit UpdateWindowDriver(QString hostVersion, qint64 maxNotesBytes = 512 * 1024,
                                std::chrono::milliseconds timeout = std::chrono::seconds(30),
                                QString fetchProgram = {});
    ~UpdateWindowDriver() override;

    void showUpdateFound(const AppcastItem& item, std::function<void(UpdateChoice)> reply) override;
    void showUpdateNotFound(const UpdateError& error) override;
    void showUpdaterError(const UpdateError& error) override;

    // The window on screen, if any; for tests and for raising it again.
    [[nodiscard]] QDialog* currentWindow() const { return m_window; }

private:
    void present(QDialog* window);
    void fetchReleaseNotes(const QUrl& url, UpdateFoundDialog* dialog);

    QString m_hostVersion;
    qint64 m_maxNotesBytes;
    std::chrono::milliseconds m_timeout;
    QString m_fetchProgram;
    QPointer<QDialog> m_window;
};

} // namespace velto
