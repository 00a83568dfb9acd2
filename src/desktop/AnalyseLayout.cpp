// The window of the analysis, with the drawing that opens it.
#include "analysis/AnalyseDialog.h"
#include "desktop/DialogLayouts.h"
#include "desktop/EventGuard.h"
#include "desktop/FormRows.h"
#include "desktop/Style.h"
#include "desktop/Views.h"
#include "screens/Analyse.h"

#include <QDialog>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace velorix {
namespace {

// A pipeline's profile and its gradeline, drawn from left to right by one step a tick. A click or a key ends
// it.
class OpeningDrawing : public QWidget {
public:
    OpeningDrawing() { setFocusPolicy(Qt::StrongFocus); }

    void Step()
    {
        ++StepsDone;
        update();
    }

protected:
    void keyPressEvent(QKeyEvent*) override { Guarded(EndDecoration); }
    void mousePressEvent(QMouseEvent*) override { Guarded(EndDecoration); }

    void paintEvent(QPaintEvent*) override
    {
        constexpr double Steps = 24.0; // a little less than the time allows
        QPainter Painter(this);
        Painter.setRenderHint(QPainter::Antialiasing);
        Painter.setClipRect(QRectF(0.0, 0.0, width() * std::fmin(1.0, StepsDone / Steps), height()));
        Painter.setPen(QPen(Colors().Border, 1.0));
        for (int Line = 1; Line < GridLines; ++Line) {
            const double Y = height() * double(Line) / GridLines;
            Painter.drawLine(QPointF(0.0, Y), QPointF(width(), Y));
        }
        Painter.setPen(QPen(Colors().Tint, 8.0, Qt::SolidLine, Qt::RoundCap));
        Painter.drawPath(Profile());
        Painter.setPen(QPen(Colors().Ink, 2.0, Qt::SolidLine, Qt::RoundCap));
        Painter.drawPath(Profile());
        Painter.setPen(QPen(Colors().Accent, 2.0, Qt::DashLine, Qt::RoundCap));
        Painter.drawLine(QPointF(0.0, height() * 0.12), QPointF(width(), height() * 0.45));
    }

private:
    static constexpr int GridLines = 6;

    QPainterPath Profile() const
    {
        QPainterPath Path(QPointF(0.0, height() * 0.2));
        for (int X = 1; X <= width(); ++X) {
            const double Along = double(X) / width();
            const double Depth =
                0.2 + 0.35 * Along + 0.28 * std::sin(Along * 3.1) + 0.05 * std::sin(Along * 15.0);
            Path.lineTo(X, height() * Depth);
        }
        return Path;
    }

    int StepsDone = 0;
};

QWidget* ProgressLine()
{
    QProgressBar* const Bar = View(frmAnalyse.proBar);
    Bar->setTextVisible(false);
    NameField(Bar, "Progress");
    QWidget* const Line = InRow({View(frmAnalyse.lbl0), Bar, View(frmAnalyse.lbl100)});
    static_cast<QBoxLayout*>(Line->layout())->setStretchFactor(Bar, 1);
    return Line;
}

} // namespace

QDialog* AnalyseDialog(QWidget* Owner)
{
    constexpr QSize Size(460, 190);
    constexpr int Margin = 16;
    auto* const Dialog = new QDialog(Owner);
    Dialog->setWindowTitle(QString::fromStdString(frmAnalyse.Caption));
    Dialog->setFixedSize(Size);

    QPushButton* const Analyse = View(frmAnalyse.sscAnalyse);
    Analyse->setDefault(true);
    QObject::connect(Analyse, &QPushButton::clicked, Analyse, [Analyse] { // the analysis has run by now
        Analyse->setToolTip(QString::fromStdString(frmAnalyse.sscAnalyse.ToolTip));
        Analyse->setAccessibleDescription(Analyse->toolTip());
    });
    QWidget* const Controls = InColumn(
        {nullptr, View(frmAnalyse.lblAnalyse), ProgressLine(), nullptr,
         InRow({nullptr, Analyse, View(frmAnalyse.sscCancel), ToolView(frmAnalyse.sscHelp, "help")})});
    auto* const Drawing = new OpeningDrawing;

    auto* const Layout = new QVBoxLayout(Dialog);
    Layout->setContentsMargins(Margin, Margin, Margin, Margin);
    Layout->addWidget(Drawing, 1);
    Layout->addWidget(Controls, 1);
    frmAnalyse.tmrMatrix.Tick = [Shown = QPointer<OpeningDrawing>(Drawing)] {
        if (Shown) Shown->Step();
    };
    WhenShown(Analyse, [Drawing, Controls, Analyse](bool Shown) {
        Drawing->setVisible(!Shown);
        Controls->setVisible(Shown);
        if (Shown)
            Analyse->setFocus();
        else
            Drawing->setFocus();
    });
    return Dialog;
}

} // namespace velorix
