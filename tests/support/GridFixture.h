#pragma once

#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"
#include "grid/opened/OpenDatasets.h"
#include "tests/support/GridNotes.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDataset.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QTest>

#include <functional>
#include <memory>

/// A grid in its own window, over six observations unless it is filled with others:
///
///     USUBJID  S1 S2 S3 S1 S4 S2      labelled "Subject"
///     SEX      F  M  F  M     F       labelled "Sex as recorded at the visit"
///     AGE      34 51 .  34 47 51
///     SITE     X-1 X-2 Y-1 X-1 y-1 X-2
class GridFixture
{
public:
    enum Variable
    {
        Usubjid,
        Sex,
        Age,
        Site
    };
    using Fill = std::function<void(ScriptedDataset&)>;

    explicit GridFixture(const Fill& fillIt = fill)
    {
        fillIt(dataset);
        view = open(dataset);
    }
    ~GridFixture() { view.reset(); }
    GridFixture(const GridFixture&) = delete;
    GridFixture& operator=(const GridFixture&) = delete;

    static void fill(ScriptedDataset& dataset)
    {
        dataset.variable("USUBJID", TypeCode::Character, "Subject");
        dataset.variable("SEX", TypeCode::Character, "Sex as recorded at the visit");
        dataset.variable("AGE", TypeCode::Double).variable("SITE", TypeCode::Character, "", 10);
        dataset.row({"S1", "F", 34.0, "X-1"}).row({"S2", "M", 51.0, "X-2"});
        dataset.row({"S3", "F", ScriptedDataset::missing, "Y-1"}).row({"S1", "M", 34.0, "X-1"});
        dataset.row({"S4", "", 47.0, "y-1"}).row({"S2", "F", 51.0, "X-2"});
    }

    std::unique_ptr<MainTableView> open(ScriptedDataset& shown)
    {
        auto* open = new OpenDataset(shown, &datasets);
        auto grid = std::make_unique<MainTableView>(open);
        open->setParent(grid.get());
        auto* model = new MainTableModel(open, grid.get());
        if (shown.observationCount() < 1000) {  // it looks at each cell after each reset
            new QAbstractItemModelTester(model, model);
        }
        grid->setModel(model);
        notes.listenTo(*grid);
        return grid;
    }

    /// Closes the grid and tells what nobody has asked for: lines logged, notes not taken, a cursor
    /// that still waits.
    [[nodiscard]] QStringList close()
    {
        view.reset();
        QStringList left = notes.take();
        left << QString::fromStdString(log.take()).split('\n', Qt::SkipEmptyParts);
        if (QGuiApplication::overrideCursor() != nullptr) {
            left << "cursor";
        }
        return left;
    }

    [[nodiscard]] OpenDataset& opened() const { return *view->opened(); }

    /// Makes the view able to take keys.
    [[nodiscard]] bool activate() const
    {
        view->show();
        view->setFocus();
        return QTest::qWaitForWindowActive(view.get());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        // Not keyClick(), which knows no accents.
        QTest::sendKeyEvent(QTest::Click, view.get(), key, QString(), modifiers);
    }

    void goTo(int row, int variable) const
    {
        // Whatever key was pressed last: the view would toggle a cell under Ctrl.
        view->selectionModel()->setCurrentIndex(view->model()->index(row, variable),
                                                QItemSelectionModel::ClearAndSelect);
    }
    /// Selects a cell besides those that are selected.
    void select(int row, int variable) const
    {
        view->selectionModel()->select(view->model()->index(row, variable),
                                       QItemSelectionModel::Select);
    }
    /// The observation of the current cell, counted from 1, and 0 without one.
    [[nodiscard]] int currentNumber() const
    {
        const QModelIndex current = view->currentIndex();
        return current.isValid() ? view->tableModel()->observationAt(current.row()) + 1 : 0;
    }
    /// The numbers of the rows shown, from top to bottom: "1 4".
    [[nodiscard]] QString shown() const { return shown(*view); }
    [[nodiscard]] static QString shown(const MainTableView& grid)
    {
        QStringList numbers;
        for (int row = 0; row < grid.model()->rowCount(); ++row) {
            if (!grid.isRowHidden(row)) {
                numbers << grid.model()->headerData(row, Qt::Vertical).toString();
            }
        }
        return numbers.join(' ');
    }
    /// The names of the columns shown, from left to right.
    [[nodiscard]] QString columns() const
    {
        QStringList names;
        for (int place = 0; place < view->horizontalHeader()->count(); ++place) {
            const int variable = view->horizontalHeader()->logicalIndex(place);
            if (!view->isColumnHidden(variable)) {
                names << view->model()->headerData(variable, Qt::Horizontal).toString();
            }
        }
        return names.join(' ');
    }
    /// Both filters: "where a = 1|if b = 2".
    [[nodiscard]] QString filters() const
    {
        return opened().libraryFilterText() + '|' + opened().datasetFilterText();
    }

    LogCapture log;
    ScriptedDataset dataset;
    OpenDatasets datasets;
    GridNotes notes;
    std::unique_ptr<MainTableView> view;
};
