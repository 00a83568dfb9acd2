// Icons, buttons and texts of the boxes.
#include "desktop/MessageBoxes.h"

#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

namespace velorix {
namespace {

QMessageBox::Icon IconOf(MessageIcon Icon)
{
    switch (Icon) {
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Exclamation: return QMessageBox::Warning;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

// The second button of a pair is the one that changes nothing, so Escape stands for it.
void SetButtons(QMessageBox& Box, MessageButtons Buttons)
{
    switch (Buttons) {
    case MessageButtons::Ok: Box.setStandardButtons(QMessageBox::Ok); break;
    case MessageButtons::YesNo:
        Box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        Box.setDefaultButton(QMessageBox::Yes);
        Box.setEscapeButton(QMessageBox::No);
        break;
    case MessageButtons::RetryCancel:
        Box.setStandardButtons(QMessageBox::Retry | QMessageBox::Cancel);
        Box.setDefaultButton(QMessageBox::Retry);
        Box.setEscapeButton(QMessageBox::Cancel);
        break;
    }
}

// A text whose lines can be broken anywhere in a long name: the toolkit would cut what it can't break.
QString Breakable(const QString& Text)
{
    constexpr int LongestPiece = 24;
    QString Result;
    int Piece = 0;
    for (const QChar Each : Text) {
        Result += Each;
        Piece = Each.isSpace() || Each == '/' || Each == '-' ? 0 : Piece + 1;
        if (Piece < LongestPiece || Each.isHighSurrogate()) continue;
        Result += QChar(0x200B); // a blank without width
        Piece = 0;
    }
    return Result;
}

// Plain, as the text above it: a file name may look like markup. With room for that text, which the toolkit
// would wrap by the length of the detail's words.
void ShowDetail(QMessageBox& Box, const QString& Text)
{
    constexpr int LeastWidth = 320;
    constexpr int Room = 12;
    Box.setInformativeText(Breakable(Text));
    auto* const Shown = Box.findChild<QLabel*>("qt_msgbox_informativelabel");
    if (!Shown) return;
    Shown->setTextFormat(Qt::PlainText);
    const int Width =
        Box.fontMetrics().boundingRect(Box.screen()->availableGeometry(), 0, Box.text()).width();
    Shown->setMinimumWidth(std::clamp(Width + Room, LeastWidth, Box.screen()->availableSize().width() / 2));
}

Answer AnswerOf(int Button)
{
    switch (Button) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Retry: return Answer::Retry;
    case QMessageBox::Cancel: return Answer::Cancel;
    default: return Answer::Ok;
    }
}

} // namespace

Answer ShowMessageBox(const Message& Box, QWidget* Owner)
{
    QMessageBox Window(Owner);
    Window.setIcon(IconOf(Box.Icon));
    Window.setWindowTitle(QString::fromStdString(Box.Title));
    Window.setTextFormat(Qt::PlainText);
    Window.setText(QString::fromStdString(Box.Text));
    if (!Box.Detail.empty()) ShowDetail(Window, QString::fromStdString(Box.Detail));
    SetButtons(Window, Box.Buttons);
    return AnswerOf(Window.exec());
}

} // namespace velorix
