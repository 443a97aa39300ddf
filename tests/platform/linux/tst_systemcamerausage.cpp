// Cameras held open, read from fixture /proc, /sys and /dev trees.
#include "FixtureTree.h"
#include "detection/SystemDeviceUsage.h"

#include <QTest>

#include <unistd.h>

using namespace velto;
using namespace Qt::Literals::StringLiterals;

class TestSystemCameraUsage : public QObject, protected FixtureTree {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(resetTree()); }

    void noCameraMeansNoProcessIsLookedAt();
    void camerasHeldOpenByTheUserCountRealOnesOnly();

private:
    void buildCameraTree();
};

// Four video devices: a USB webcam with a by-id name (video0), a loopback device in the virtual tree (video1),
// a loopback device that sits on a platform device (video2), a second webcam without a by-id name (video3).
void TestSystemCameraUsage::buildCameraTree()
{
    const QString usb = u"sys/devices/pci0000:00/0000:00:14.0/usb1/"_s;
    write(u"sys/bus/usb/drivers/uvcvideo/.keep"_s);
    write(u"sys/bus/platform/drivers/v4l2loopback/.keep"_s);
    for (const auto& [device, number] : {std::pair{u"1-1/1-1:1.0"_s, 0}, std::pair{u"1-2/1-2:1.0"_s, 3}}) {
        const QString node = usb + device + u"/video4linux/video%1"_s.arg(number);
        write(node + u"/dev"_s, "81:%1\n"_ba.replace("%1", QByteArray::number(number)));
        write(node + u"/name"_s, "HD Webcam\n");
        link(node + u"/device"_s, path(usb + device));
        link(usb + device + u"/driver"_s, path(u"sys/bus/usb/drivers/uvcvideo"_s));
        link(u"sys/class/video4linux/video%1"_s.arg(number), path(node));
    }
    write(u"sys/devices/virtual/video4linux/video1/dev"_s, "81:1\n");
    write(u"sys/devices/virtual/video4linux/video1/name"_s, "OBS Virtual Camera\n");
    link(u"sys/class/video4linux/video1"_s, path(u"sys/devices/virtual/video4linux/video1"_s));
    const QString platform = u"sys/devices/platform/v4l2loopback.0"_s;
    write(platform + u"/video4linux/video2/dev"_s, "81:2\n");
    write(platform + u"/video4linux/video2/name"_s, "Dummy video device (0x0000)\n");
    link(platform + u"/video4linux/video2/device"_s, path(platform));
    link(platform + u"/driver"_s, path(u"sys/bus/platform/drivers/v4l2loopback"_s));
    link(u"sys/class/video4linux/video2"_s, path(platform + u"/video4linux/video2"_s));
    link(u"dev/v4l/by-id/usb-Acme_HD_Webcam_0001-video-index0"_s, u"../../video0"_s);
    write(u"proc/100/comm"_s, "editor\n");
    link(u"proc/100/fd/0"_s, u"/dev/null"_s);
    link(u"proc/100/fd/1"_s, u"socket:[1234]"_s);
}

void TestSystemCameraUsage::noCameraMeansNoProcessIsLookedAt()
{
    write(u"proc/100/comm"_s, "meeting\n");
    link(u"proc/100/fd/5"_s, u"/dev/video0"_s);
    // No video4linux class at all: the open descriptor cannot be a camera, and nothing asks.
    const SystemCameraUsage camera({path(u"proc"_s), path(u"sys"_s), path(u"dev"_s)});
    QVERIFY(camera.activeCameraIdentifiers().isEmpty());
    QVERIFY(!camera.isCameraInUse());
}

void TestSystemCameraUsage::camerasHeldOpenByTheUserCountRealOnesOnly()
{
    buildCameraTree();
    const SystemCameraUsage camera({path(u"proc"_s), path(u"sys"_s), path(u"dev"_s)});
    QVERIFY(!camera.isCameraInUse());

    // Loopback devices, in either place the kernel puts them, are no camera.
    link(u"proc/200/fd/7"_s, u"/dev/video1"_s);
    link(u"proc/201/fd/7"_s, u"/dev/video2"_s);
    QVERIFY(camera.activeCameraIdentifiers().isEmpty());

    link(u"proc/202/fd/3"_s, u"/dev/video0"_s);
    link(u"proc/202/fd/4"_s, u"/dev/video0"_s);
    QCOMPARE(camera.activeCameraIdentifiers(), QStringList{u"usb-Acme_HD_Webcam_0001-video-index0"_s});
    QVERIFY(camera.isCameraInUse());

    // A process directory without descriptors to read (it exited, or is not ours) is passed over.
    write(u"proc/150/comm"_s, "gone\n");
    QCOMPARE(camera.activeCameraIdentifiers().size(), 1);

    if (::getuid() == 0) {
        // Another user's process holding the second webcam is that user's business.
        link(u"proc/300/fd/3"_s, u"/dev/video3"_s);
        QVERIFY(::lchown(QFile::encodeName(path(u"proc/300"_s)).constData(), 4321, 4321) == 0);
        QCOMPARE(camera.activeCameraIdentifiers().size(), 1);
    }

    // A webcam without a by-id name goes by its sysfs path; the list is in device order, whatever the order of
    // the processes.
    link(u"proc/99/fd/9"_s, u"/dev/video3"_s);
    QCOMPARE(camera.activeCameraIdentifiers(),
             (QStringList{u"usb-Acme_HD_Webcam_0001-video-index0"_s,
                          u"/devices/pci0000:00/0000:00:14.0/usb1/1-2/1-2:1.0/video4linux/video3"_s}));
}

QTEST_GUILESS_MAIN(TestSystemCameraUsage)
#include "tst_systemcamerausage.moc"
