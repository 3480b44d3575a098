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

// Answers, in order, each modal window that becomes active after it is armed.
// An answer must act later (clickLater) so that a window it opens is answered
// in turn. Anything unanswered, or open at the time limit, is closed: a failure.
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

    // The titles seen, joined by "|"; then "|?" unless every answer was used
    // and nothing else came up.
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
        if (modal == std::exchange(last_, modal))
            return;
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

inline void clickLater(QAbstractButton* button)
{
    if (button != nullptr)
        QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
}

inline QAbstractButton* standardButton(QWidget* modal, QDialogButtonBox::StandardButton which)
{
    if (auto* box = qobject_cast<QMessageBox*>(modal))
        return box->button(static_cast<QMessageBox::StandardButton>(which));
    if (auto* buttons = modal->findChild<QDialogButtonBox*>())
        return buttons->button(which);
    return nullptr;
}

inline ModalAnswers::Answer press(QDialogButtonBox::StandardButton which)
{
    return [which](QWidget* modal) { clickLater(standardButton(modal, which)); };
}

// A dialog's widget by its object name; a missing one ends the run.
template <class Widget> Widget* child(QWidget* dialog, const QString& name)
{
    auto* found = dialog->findChild<Widget*>(name);
    if (found == nullptr)
        qFatal("no widget named %s in %s", qPrintable(name), qPrintable(dialog->objectName()));
    return found;
}

inline QAbstractButton* button(QWidget* dialog, const QString& name)
{
    return child<QAbstractButton>(dialog, name);
}

inline QLineEdit* edit(QWidget* dialog, const QString& name)
{
    return child<QLineEdit>(dialog, name);
}

// Types into a box over whatever it held.
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

// Types the name into the client finder and presses Enter.
inline ModalAnswers::Answer typeName(const QString& name)
{
    return [name](QWidget* dialog) {
        retype(dialog, QStringLiteral("nameEdit"), name);
        QTest::keyClick(edit(dialog, QStringLiteral("nameEdit")), Qt::Key_Return);
    };
}

} // namespace purrlodge::testing
