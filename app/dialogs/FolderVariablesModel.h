#pragma once

#include "analysis/FolderVariables.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

/// The variables of all datasets of a folder, a row each.
class FolderVariablesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Dataset,
        Name,
        Type,
        Length,
        Format,
        Label,
        Differs,  ///< in words: "length, label"
        Columns
    };
    static constexpr int sortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void setContents(foldervariables::Contents contents);
    [[nodiscard]] const foldervariables::Contents& contents() const { return m_contents; }
    [[nodiscard]] const foldervariables::Variable& variable(int row) const
    {
        return m_contents.variables.at(static_cast<std::size_t>(row));
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] static QString text(const foldervariables::Variable& variable, int column);
    [[nodiscard]] QString tip(const foldervariables::Variable& variable, int column) const;

    foldervariables::Contents m_contents;
};

/// Those of them that contain a text, and if wanted only those that differ.
class FolderVariablesFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit FolderVariablesFilter(QObject* parent = nullptr);

    void setText(const QString& text);
    void setOnlyDifferent(bool isOnly);

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    bool m_isOnlyDifferent = false;
};
