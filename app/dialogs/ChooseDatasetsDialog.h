#pragma once

#include <QDialog>
#include <QStringList>

class QListWidget;

/// Lets the user choose among the datasets of a file.
class ChooseDatasetsDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param fileName  as people read it
    /// @param names     of all datasets of the file; the first is chosen at the beginning
    ChooseDatasetsDialog(const QString& fileName, const QStringList& names,
                         QWidget* parent = nullptr);

    /// The names chosen, in the file's order.
    [[nodiscard]] QStringList chosen() const;

private:
    QListWidget* m_list;
};
