// The recording test on window titles of a real X session (screen capture in PipeWire has a test of its own).
#include "X11ProviderFixture.h"
#include "detection/PipeWireCapture.h"
#include "detection/SystemMediaProviders.h"
#include "detection/SystemX11Providers.h"

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemScreenRecordingState : public X11ProviderFixture {
    Q_OBJECT

private Q_SLOTS:
    void aRecordingTitleCountsOnlyForKnownApplications();
};

void TestSystemScreenRecordingState::aRecordingTitleCountsOnlyForKnownApplications()
{
    SystemWorkspace workspace(m_link, m_identities, m_memo);
    SystemWindowList windows(m_link);
    // No media server here: only the window titles can tell.
    SystemScreenRecordingState recording(m_link, std::make_shared<PipeWireCapture>(m_dataDir.path(), u"none"_s));
    quint32 id = 0;
    QProcess* tool = open({u"--class"_s, u"someTool.SomeTool"_s, u"--title"_s, u"Notes"_s}, &id);
    QVERIFY(tool);
    QTRY_COMPARE(workspace.runningApplications().size(), 1);
    QVERIFY(!recording.isScreenRecording(workspace.runningApplications()));

    QVERIFY(xdotool({u"set_window"_s, u"--name"_s, u"Screen Recording 2026-11-23"_s, QString::number(id)}));
    QTRY_VERIFY(windows.titledWindows().contains(
        TitledWindow{static_cast<qint32>(tool->processId()), u"Screen Recording 2026-11-23"_s}));
    QVERIFY(recording.isScreenRecording(workspace.runningApplications()));
    // The title alone is no evidence when its process is not among the running applications.
    QVERIFY(!recording.isScreenRecording({}));
}

QTEST_GUILESS_MAIN(TestSystemScreenRecordingState)
#include "tst_systemscreenrecordingstate.moc"
