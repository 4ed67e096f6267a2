// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef TESTS_SUPPORT_MODAL_H
#define TESTS_SUPPORT_MODAL_H

#include <QApplication>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QList>
#include <QPointer>
#include <QTimerEvent>
#include <QWidget>

#include <functional>
#include <memory>

/// Driving modal dialogs and popup menus while their exec() runs, in the test's own process.
namespace testsupport {

/// What became of one onModal().
class ModalStep
{
public:
    /// Whether the dialog came and the function returned.
    bool done() const { return *m_done; }

private:
    friend class ModalQueue;
    std::shared_ptr<bool> m_done = std::make_shared<bool>(false);
};

/// The steps that wait for their dialogs, in the order of their onModal() calls.
class ModalQueue : public QObject
{
public:
    static ModalQueue &instance()
    {
        static QPointer<ModalQueue> queue;
        if (!queue)
            queue = new ModalQueue(qApp);
        return *queue;
    }

    ModalStep append(std::function<void(QWidget *)> act, int deadlineMs)
    {
        if (m_last && !m_last->isVisible())
            m_last.clear(); // a dialog that runs a second time is handed out a second time
        Waiting waiting{std::move(act), deadlineMs, {}, {}};
        waiting.elapsed.start();
        m_waiting.append(waiting);
        restartTimer();
        return waiting.step;
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        QWidget *const shown = shownModal();
        if (shown && shown != m_last)
            actOn(shown);
        else if (m_waiting.first().elapsed.hasExpired(m_waiting.first().deadlineMs))
            giveUp(shown);
    }

private:
    struct Waiting
    {
        std::function<void(QWidget *)> act;
        int deadlineMs;
        QElapsedTimer elapsed;
        ModalStep step;
    };

    explicit ModalQueue(QObject *parent) : QObject(parent) {}

    static QWidget *shownModal()
    {
        QWidget *const popup = QApplication::activePopupWidget();
        QWidget *const shown = popup ? popup : QApplication::activeModalWidget();
        return shown && shown->isVisible() ? shown : nullptr;
    }

    // A timer doesn't fire again while its event is handled, and what the function presses may well run the
    // next dialog's exec() inside it: so each handout leaves a new timer behind.
    void restartTimer()
    {
        if (m_timer)
            killTimer(m_timer);
        m_timer = m_waiting.isEmpty() ? 0 : startTimer(10);
    }

    void actOn(QWidget *shown)
    {
        const Waiting next = m_waiting.takeFirst();
        if (!m_waiting.isEmpty())
            m_waiting.first().elapsed.start();
        m_last = shown;
        restartTimer();
        next.act(shown);
        *next.step.m_done = true;
    }

    // Closes what is open, so that a test whose dialog isn't the expected one fails and doesn't hang.
    void giveUp(QWidget *shown)
    {
        qWarning("No modal dialog came within %d ms", m_waiting.first().deadlineMs);
        m_waiting.clear();
        restartTimer();
        if (shown)
            shown->close();
    }

    QList<Waiting> m_waiting;
    QPointer<QWidget> m_last; // handled already; null once it is destroyed
    int m_timer = 0;
};

/// Calls `act` with the next modal dialog or popup menu that shows, from within its exec(). Steps that are
/// asked for in advance take one dialog each, in order; one dialog is never handed out twice. `act` has to
/// close the dialog (press a button, trigger an action). When none comes in time a warning is written, what
/// is open is closed and the steps that wait are dropped: compare done() after exec().
inline ModalStep onModal(std::function<void(QWidget *)> act, int deadlineMs = 10000)
{
    return ModalQueue::instance().append(std::move(act), deadlineMs);
}

} // namespace testsupport

#endif
