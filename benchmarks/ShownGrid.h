#pragma once

#include "data/InMemoryDataset.h"
#include "grid/MainTableModel.h"
#include "grid/MainTableView.h"

#include <memory>
#include <string>

/// A grid on the (virtual) screen.
class ShownGrid
{
public:
    explicit ShownGrid(StatDataset& dataset)
        : m_opened(dataset)
        , m_model(&m_opened)
        , m_view(&m_opened)
    {
        m_view.setModel(&m_model);
        m_view.fitColumns();
        m_view.resize(1400, 900);
        m_view.show();
        paint();
    }
    void run(const char* command)
    {
        m_view.cmdRunCommand(QString::fromUtf8(command));
        paint();
    }
    void paint() { m_view.viewport()->repaint(); }
    MainTableView& view() { return m_view; }

private:
    OpenDataset m_opened;
    MainTableModel m_model;
    MainTableView m_view;
};

/// Twenty rows of many variables.
inline std::unique_ptr<StatDataset> wideDataset(int columns)
{
    constexpr int rows = 20;
    InMemoryDatasetBuilder builder;
    for (int column = 0; column < columns; ++column) {
        VariableDescription variable;
        variable.name = "V" + std::to_string(column);
        variable.type = TypeCode::Double;
        builder.addVariable(std::move(variable));
    }
    for (int cell = 0; cell < rows * columns; ++cell) {
        builder.addNumber(cell);
    }
    return builder.build();
}
