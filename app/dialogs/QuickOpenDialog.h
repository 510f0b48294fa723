#pragma once

#include <QDialog>

class QAbstractItemModel;
class QLabel;
class QLineEdit;
class QListView;
class QSortFilterProxyModel;
class QStringListModel;

/// The palette that leads to a dataset of the workspace, to a variable of the active grid ("v age")
/// or to an observation by its number.
class QuickOpenDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param workspace  the tree of datasets, each with its path as the item's user data
    /// @param grid       the model of the active grid, or null
    QuickOpenDialog(const QAbstractItemModel& workspace, const QAbstractItemModel* grid,
                    QWidget* parent = nullptr);

signals:
    void fileChosen(QString path);
    /// @param observation  from 0
    void rowChosen(int observation);
    void columnChosen(int column);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Mode
    {
        Datasets = 0,
        Variables = 1,
    };

    void createParts();
    void filter(const QString& text);
    void setMode(Mode mode);
    void accept() override;
    /// The observation whose number is typed, from 0; -1 where none is.
    [[nodiscard]] int typedObservation() const;

    QStringListModel* m_datasets;
    QStringListModel* m_variables;
    QSortFilterProxyModel* m_proxy;
    QLineEdit* m_text;
    QListView* m_list;
    QLabel* m_hint;
    int m_observationCount;
    Mode m_mode = Mode::Datasets;
};
