// Redrawing the plots of the largest project in a window, from the user's move to the last pixel, beside the
// painting alone.
#include "LargestProject.h"
#include "desktop/EventGuard.h"
#include "desktop/QtPlatform.h"
#include "desktop/SurfaceView.h"
#include "results/PlotState.h"
#include "results/ProfilePlot.h"
#include "screens/Lcc.h"
#include "screens/Results.h"
#include "screens/Viewers.h"
#include "shell/Shell.h"

#include <QWindow>
#include <benchmark/benchmark.h>
#include <memory>

namespace velorix {
namespace {

// A plot as a window of 1280 x 800 pixels shows it.
class Window {
public:
    explicit Window(DrawingSurface& Surface)
        : View(std::make_unique<SurfaceView>(Surface))
    {
        View->resize(1240, 656);
        View->show();
        while (!View->windowHandle()->isExposed())
            QCoreApplication::processEvents(); // unseen, it isn't painted
    }

    void Paint() { View->repaint(); }

private:
    std::unique_ptr<SurfaceView> View;
};

// Symbols at every node: the most that a profile can show.
void OpenLargestProject()
{
    LoadLargestProject();
    for (int Row = 1; Row <= MaxRows; ++Row) wNodeDesc[Row] = static_cast<std::int16_t>(1 + Row % 5);
    frmLCC.msgProfile.SetRows(MaxRows + 1);
    SolveFlows(Tables::Filled);
    TakeProfileForPlot();
    FillDistances(frmView.comBegin, frmView.comEnd);
    frmResults.hscDuty.Max = wLife;
}

void RedrawProfile(benchmark::State& State)
{
    OpenLargestProject();
    Window Shown(frmView.picGraph);
    for (auto _ : State) {
        DrawProfilePlot();
        Shown.Paint();
    }
}
BENCHMARK(RedrawProfile)->Unit(benchmark::kMillisecond);

// One step of the bar: the year's curve of 10,000 points.
void DragDuty(benchmark::State& State)
{
    OpenLargestProject();
    Window Shown(frmResults.picDuty);
    int Year = 1;
    for (auto _ : State) {
        Year = Year % wLife + 1;
        frmResults.hscDuty.Value = Year;
        Shown.Paint();
    }
}
BENCHMARK(DragDuty)->Unit(benchmark::kMillisecond);

void PaintAgain(benchmark::State& State, DrawingSurface& Surface)
{
    Window Shown(Surface);
    for (auto _ : State) {
        Surface.View(); // the picture has changed
        Shown.Paint();
    }
}

void PaintProfile(benchmark::State& State)
{
    OpenLargestProject();
    DrawProfilePlot();
    PaintAgain(State, frmView.picGraph);
}
BENCHMARK(PaintProfile)->Unit(benchmark::kMillisecond);

void PaintDuty(benchmark::State& State)
{
    OpenLargestProject();
    frmResults.hscDuty.Value.Restore(1);
    frmResults.hscDuty.Change();
    PaintAgain(State, frmResults.picDuty);
}
BENCHMARK(PaintDuty)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velorix

int main(int ArgumentCount, char** Words)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&ArgumentCount, Words);
    velorix::EventGuard Program(ArgumentCount, Words);
    velorix::QtPlatform Windows;
    velorix::InstallPlatform(&Windows);
    velorix::ConnectScreens();
    benchmark::RunSpecifiedBenchmarks();
}
