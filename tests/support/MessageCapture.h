#pragma once

#include <QList>
#include <QMutex>
#include <QString>
#include <QtGlobal>

#include <atomic>

// Records every message printed while it lives (from any thread) and still passes each one on, so a test can
// count what a component prints without hiding it from the log.
class MessageCapture {
public:
    struct Message {
        QtMsgType type;
        QString category;
        QString text;
    };

    MessageCapture()
    {
        s_current = this;
        m_previous = qInstallMessageHandler(&MessageCapture::handle);
    }
    ~MessageCapture()
    {
        qInstallMessageHandler(m_previous);
        s_current = nullptr;
    }
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    [[nodiscard]] QList<Message> messages() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_messages;
    }
    [[nodiscard]] QStringList texts() const
    {
        QStringList result;
        for (const Message& message : messages())
            result.append(message.category + QStringLiteral(": ") + message.text);
        return result;
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        MessageCapture* capture = s_current.load();
        if (!capture)
            return;
        {
            const QMutexLocker lock(&capture->m_mutex);
            capture->m_messages.append(
                {type, QString::fromUtf8(context.category ? context.category : "default"), text});
        }
        if (capture->m_previous)
            capture->m_previous(type, context, text);
    }

    inline static std::atomic<MessageCapture*> s_current = nullptr;
    QtMessageHandler m_previous = nullptr;
    mutable QMutex m_mutex;
    QList<Message> m_messages;
};
