#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class StatDataset;

/// Shows the whole text of one cell, to be read and copied.
class CellPane : public QWidget
{
    Q_OBJECT

public:
    explicit CellPane(QWidget* parent = nullptr);

    /// @param dataset      null for no cell; nothing is kept of it
    /// @param observation  -1 for no cell
    void showCell(const StatDataset* dataset, int observation, int variable);

private:
    void showText(const QString& text);

    QLabel* m_title;
    QPlainTextEdit* m_text;
};
