#pragma once

#include "notification/NotificationWindowPresenting.h"
#include "notification/OneShotTiming.h"
#include "notification/PreBreakNotificationDisplayModel.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

// Records the cards it is asked to show and hide, in one journal, and keeps the last card's actions so a test
// can press its controls.
class FakeNotificationPresenter final : public velto::NotificationWindowPresenting {
public:
    struct Card {
        std::shared_ptr<velto::PreBreakNotificationDisplayModel> model;
        std::function<void()> onBreakNow;
        std::function<void(double)> onPause;
        std::function<void()> onSkip;
        std::function<void()> onDismiss;
    };

    void show(std::shared_ptr<velto::PreBreakNotificationDisplayModel> displayModel, std::function<void()> onBreakNow,
              std::function<void(double)> onPause, std::function<void()> onSkip,
              std::function<void()> onDismiss) override
    {
        journal->append(QStringLiteral("show"));
        cards.append({std::move(displayModel), std::move(onBreakNow), std::move(onPause), std::move(onSkip),
                      std::move(onDismiss)});
    }
    void hide() override
    {
        journal->append(QStringLiteral("hide"));
        ++hides;
    }

    // Shared with the test, so entries from callbacks and from the presenter land in one order.
    std::shared_ptr<QStringList> journal = std::make_shared<QStringList>();
    QList<Card> cards;
    int hides = 0;
};

// A one-shot timer that fires only when the test says so.
class FakeOneShotTimer final : public velto::OneShotTiming {
public:
    void start(double seconds, std::function<void()> action) override
    {
        ++starts;
        interval = seconds;
        m_action = std::move(action);
    }
    void stop() override { m_action = nullptr; }
    [[nodiscard]] bool isActive() const override { return static_cast<bool>(m_action); }

    // Runs the pending action as the time running out would; false when none is pending.
    bool fire()
    {
        auto action = std::exchange(m_action, nullptr);
        if (!action)
            return false;
        action();
        return true;
    }

    int starts = 0;
    double interval = -1;

private:
    std::function<void()> m_action;
};

// Queued calls held until the test runs them, so it can look at the state in between.
class ManualQueue {
public:
    void post(QObject* context, std::function<void()> action) { m_pending.append({context, std::move(action)}); }
    // Runs what was queued, including what those calls queue, in order; calls whose context is gone are dropped.
    int runAll()
    {
        int ran = 0;
        while (!m_pending.isEmpty()) {
            auto [context, action] = m_pending.takeFirst();
            if (!context)
                continue;
            action();
            ++ran;
        }
        return ran;
    }
    [[nodiscard]] qsizetype size() const { return m_pending.size(); }

private:
    struct Pending {
        QPointer<QObject> context;
        std::function<void()> action;
    };
    QList<Pending> m_pending;
};
