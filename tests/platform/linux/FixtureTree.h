#pragma once

// A fresh folder per case for fixture /proc, /sys, /dev and desktop-file trees.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class FixtureTree {
protected:
    [[nodiscard]] bool resetTree()
    {
        m_tree = std::make_unique<QTemporaryDir>();
        return m_tree->isValid();
    }
    [[nodiscard]] QString path(const QString& relative) const { return m_tree->filePath(relative); }
    void write(const QString& relativePath, const QByteArray& contents = {}) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(relativePath)).absolutePath()));
        QFile file(path(relativePath));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }
    void link(const QString& relativePath, const QString& target) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(relativePath)).absolutePath()));
        QVERIFY(QFile::link(target, path(relativePath)));
    }

private:
    std::unique_ptr<QTemporaryDir> m_tree;
};
