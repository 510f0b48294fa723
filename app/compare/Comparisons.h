#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class CodeWindow;
class CompareDialog;
class ComparisonWindow;
class DatasetOpener;
class DatasetWindow;
class DifferenceView;
class MainTableView;
class OutputView;
class QMainWindow;
class QMdiArea;
class Settings;
class UserPrompts;
struct ComparedDatasets;

/// Comparing open datasets: the dialog that asks for it, the report, the grid of the differences
/// and the ways from there into the datasets.
class Comparisons : public QObject
{
    Q_OBJECT

public:
    /// All outlive the comparisons.
    struct Surroundings
    {
        QMainWindow& window;
        QMdiArea& area;
        DatasetOpener& opener;
        UserPrompts& prompts;
        Settings& settings;
        OutputView& output;
        CodeWindow& code;
    };

    explicit Comparisons(const Surroundings& surroundings);

    /// Asks what to compare, beginning with the dataset in front as the base and the one in front
    /// before it.
    void showDialog();
    /// The same with one or two files, which are opened.
    void showDialogFor(const QStringList& paths);

signals:
    /// The output has a new report.
    void signalReported();
    /// The code window has a new program.
    void signalProgramWritten();
    /// The differences are on the screen. Under a style sheet they have the fonts that they keep.
    void signalShown(DifferenceView& view);
    void signalFontSizeChanged(int points);
    /// A sub-window has been opened or closed.
    void signalWindowsChanged();
    /// Something told in passing.
    void signalMessage(const QString& text);

private:
    [[nodiscard]] QList<DatasetWindow*> datasets() const;
    [[nodiscard]] DatasetWindow* windowOf(const QString& path) const;
    void open(CompareDialog& dialog, bool isBase);
    void run(CompareDialog& dialog);
    void writeProgram(CompareDialog& dialog);
    void report(const ComparedDatasets& compared, const CompareDialog& dialog);
    void show(const std::shared_ptr<const ComparedDatasets>& compared);
    void linkGrids();
    void save(const ComparisonWindow& window);
    /// Goes to an observation and a variable of a side, -1 for none, opening it where it is closed.
    [[nodiscard]] DatasetWindow* openSide(const ComparedDatasets& compared, bool isBase);
    void goTo(const ComparisonWindow& window, int baseObservation, int compareObservation,
              int baseVariable, int compareVariable);

    Surroundings m_surroundings;
};
