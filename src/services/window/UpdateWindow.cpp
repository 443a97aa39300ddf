#include "UpdateWindow.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace velto {

namespace {

QLabel* headlineLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.2);
    label->setFont(font);
    return label;
}

QLabel* bodyLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

} // namespace

UpdateFoundDialog::UpdateFoundDialog(const AppcastItem& item, const QString& hostVersion,
                                     std::function<void(UpdateChoice)> reply, QWidget* parent)
    : QDialog(parent)
    , m_reply(std::move(reply))
{
    setWindowTitle(tr("Software Update"));
    setObjectName(u"updateFoundDialog"_s);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(headlineLabel(tr("A new version of Velto is available"), this));
    //: %1 is the new version, %2 the version running.
    layout->addWidget(bodyLabel(tr("Velto %1 is available; you have %2. Download it from the website to update.")
                                    .arg(item.displayVersionString(), hostVersion),
                                this));

    if (item.releaseNotesUrl.isValid()) {
        m_notes = new QTextBrowser(this);
        m_notes->setObjectName(u"releaseNotes"_s);
        m_notes->setOpenExternalLinks(true);
        m_notes->setPlaceholderText(tr("Loading release notes…"));
        m_notes->setMinimumSize(420, 200);
        layout->addWidget(m_notes, 1);
    }

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* skip = buttons->addButton(tr("Skip This Version"), QDialogButtonBox::DestructiveRole);
    QPushButton* later = buttons->addButton(tr("Remind Me Later"), QDialogButtonBox::RejectRole);
    //: Verb, on a button: open the page the new version is downloaded from.
    QPushButton* download = buttons->addButton(tr("Download"), QDialogButtonBox::AcceptRole);
    download->setDefault(true);
    connect(skip, &QPushButton::clicked, this, [this] { choose(UpdateChoice::Skip); });
    connect(later, &QPushButton::clicked, this, [this] { choose(UpdateChoice::Dismiss); });
    connect(download, &QPushButton::clicked, this, [this] { choose(UpdateChoice::Install); });
    layout->addWidget(buttons);
}

void UpdateFoundDialog::showReleaseNotes(const QString& html)
{
    if (m_notes)
        m_notes->setHtml(html);
}

void UpdateFoundDialog::showReleaseNotesUnavailable()
{
    if (m_notes)
        m_notes->setPlaceholderText(tr("The release notes could not be loaded."));
}

void UpdateFoundDialog::choose(UpdateChoice choice)
{
    // Answer once: the buttons and closing the window all end here.
    if (auto reply = std::exchange(m_reply, {}))
        reply(choice);
    QDialog::done(choice == UpdateChoice::Dismiss ? Rejected : Accepted);
}

void UpdateFoundDialog::done(int result)
{
    choose(UpdateChoice::Dismiss);
    Q_UNUSED(result);
}

UpdateMessageDialog::UpdateMessageDialog(const QString& headline, const QString& text, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Software Update"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(headlineLabel(headline, this));
    layout->addWidget(bodyLabel(text, this));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}

UpdateWindowDriver::UpdateWindowDriver(QString hostVersion, qint64 maxNotesBytes, std::chrono::milliseconds timeout,
                                       QString fetchProgram)
    : m_hostVersion(std::move(hostVersion))
    , m_maxNotesBytes(maxNotesBytes)
    , m_timeout(timeout)
    , m_fetchProgram(std::move(fetchProgram))
{}

UpdateWindowDriver::~UpdateWindowDriver()
{
    delete m_window.data();
}

void UpdateWindowDriver::present(QDialog* window)
{
    // One update window at a time: a newer answer replaces the older window, which counts as closed.
    if (m_window) {
        m_window->close();
        delete m_window.data();
    }
    m_window = window;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    window->raise();
    window->activateWindow();
}

void UpdateWindowDriver::showUpdateFound(const AppcastItem& item, std::function<void(UpdateChoice)> reply)
{
    auto* dialog = new UpdateFoundDialog(item, m_hostVersion, std::move(reply));
    present(dialog);
    if (item.releaseNotesUrl.isValid())
        fetchReleaseNotes(item.releaseNotesUrl, dialog);
}

void UpdateWindowDriver::showUpdateNotFound(const UpdateError& error)
{
    const int reason = error.userInfo.value(UpdaterErrors::noUpdateFoundReasonKey.toString()).toInt();
    const QString text =
        reason == int(NoUpdateFoundReason::SystemTooOld)
            ? QCoreApplication::translate("UpdateWindow",
                                          "A newer version of Velto exists but needs a newer system than this one.")
            //: %1 is the version running, such as 1.2.0.
            : QCoreApplication::translate("UpdateWindow", "Velto %1 is the newest version available.")
                  .arg(m_hostVersion);
    present(new UpdateMessageDialog(QCoreApplication::translate("UpdateWindow", "Velto is up to date"), text));
}

void UpdateWindowDriver::showUpdaterError(const UpdateError& error)
{
    present(new UpdateMessageDialog(QCoreApplication::translate("UpdateWindow", "Velto could not check for updates"),
                                    error.description));
}

void UpdateWindowDriver::fetchReleaseNotes(const QUrl& url, UpdateFoundDialog* dialog)
{
    if (!Updater::isAllowedFeedUrl(url)) {
        dialog->showReleaseNotesUnavailable();
        return;
    }
    // The download lives with the dialog: closing the window ends it.
    auto* download = new SmallDownload(m_fetchProgram, dialog);
    QObject::connect(download, &SmallDownload::finished, dialog,
                     [dialog, download](const SmallDownload::Result& result) {
                         download->deleteLater();
                         if (result.outcome == SmallDownload::Outcome::Fetched)
                             dialog->showReleaseNotes(QString::fromUtf8(result.body));
                         else
                             dialog->showReleaseNotesUnavailable();
                     });
    download->start({url, m_maxNotesBytes, m_timeout, u"Velto/"_s + m_hostVersion});
}

} // namespace velto
