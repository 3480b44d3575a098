#pragma once

#include <deque>
#include <functional>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QTest>
#include <QTimer>

namespace purrlodge::testing {

// Answers the modal dialogs and message boxes that an action opens, in order.
// Armed before the action: a timer polls QApplication::activeModalWidget() and
// hands each newly active modal window to the next answer. An answer must act
// later (clickLater), so that a window it opens is answered in turn. Anything
// modal left unanswered, or still open at the time limit, is closed so that a
// failing test never hangs; that counts as a failure.
class ModalAnswers {
public:
    using Answer = std::function<void(QWidget* modal)>;

    explicit ModalAnswers(std::deque<Answer> answers, int timeLimitMs = 15000)
        : answers_(std::move(answers))
    {
        QObject::connect(&poll_, &QTimer::timeout, [this] { pollOnce(); });
        poll_.start(20);
        QObject::connect(&timeLimit_, &QTimer::timeout, [this] { timedOut_ = true; });
        timeLimit_.setSingleShot(true);
        timeLimit_.start(timeLimitMs);
    }

    // The titles of the modal windows seen, in order, joined by "|"; followed
    // by "|?" unless every answer was used and nothing else came up.
    [[nodiscard]] QString seen() const
    {
        const bool allAnswered = answers_.empty() && !timedOut_ && !unexpected_;
        return titles_.join(u'|') + (allAnswered ? QString() : QStringLiteral("|?"));
    }

private:
    void pollOnce()
    {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr || !modal->isVisible()) {
            last_ = nullptr;
            return;
        }
        if (timedOut_) {
            close(modal);
            return;
        }
        if (modal == last_)
            return;
        last_ = modal;
        titles_.append(modal->windowTitle());
        if (answers_.empty()) {
            unexpected_ = true;
            close(modal);
            return;
        }
        Answer answer = std::move(answers_.front());
        answers_.pop_front();
        answer(modal);
    }

    static void close(QWidget* modal)
    {
        if (auto* dialog = qobject_cast<QDialog*>(modal))
            QMetaObject::invokeMethod(dialog, &QDialog::reject, Qt::QueuedConnection);
        else
            QMetaObject::invokeMethod(modal, &QWidget::close, Qt::QueuedConnection);
    }

    std::deque<Answer> answers_;
    QTimer poll_;
    QTimer timeLimit_;
    QPointer<QWidget> last_;
    QStringList titles_;
    bool timedOut_ = false;
    bool unexpected_ = false;
};

// Clicks the button once control is back in the event loop.
inline void clickLater(QAbstractButton* button)
{
    if (button != nullptr)
        QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
}

// The standard button of a dialog's button box, or of a message box.
inline QAbstractButton* standardButton(QWidget* modal, QDialogButtonBox::StandardButton which)
{
    if (auto* box = qobject_cast<QMessageBox*>(modal))
        return box->button(static_cast<QMessageBox::StandardButton>(which));
    if (auto* buttons = modal->findChild<QDialogButtonBox*>())
        return buttons->button(which);
    return nullptr;
}

// An answer that presses one of the window's standard buttons.
inline ModalAnswers::Answer press(QDialogButtonBox::StandardButton which)
{
    return [which](QWidget* modal) { clickLater(standardButton(modal, which)); };
}

// A dialog's widget by its object name; a missing one ends the test run at
// once, naming what was looked for.
template <class Widget> Widget* child(QWidget* dialog, const QString& name)
{
    auto* found = dialog->findChild<Widget*>(name);
    if (found == nullptr)
        qFatal("no widget named %s in %s", qPrintable(name), qPrintable(dialog->objectName()));
    return found;
}

inline QLineEdit* edit(QWidget* dialog, const QString& name)
{
    return child<QLineEdit>(dialog, name);
}

// Types into a box as a person does, over whatever it held.
inline void retype(QWidget* dialog, const QString& name, const QString& text)
{
    QLineEdit* box = edit(dialog, name);
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Backspace);
    QTest::keyClicks(box, text);
}

inline void pressOk(QWidget* dialog)
{
    clickLater(standardButton(dialog, QDialogButtonBox::Ok));
}

// Types the name into the finder's "Client Index" and presses Enter, which is OK.
inline ModalAnswers::Answer typeName(const QString& name)
{
    return [name](QWidget* dialog) {
        retype(dialog, QStringLiteral("nameEdit"), name);
        QTest::keyClick(edit(dialog, QStringLiteral("nameEdit")), Qt::Key_Return);
    };
}

} // namespace purrlodge::testing
