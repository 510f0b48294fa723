#pragma once

#include <QWidget>

#include <memory>

class LogLevelFilter;
class LogModel;
class LogSinkAttachment;
class QComboBox;
class QPushButton;
class QTableView;

namespace spdlog {
class logger;
}

/// Shows what a logger logs while the view lives. It follows the end, unless the user has scrolled
/// up.
class LogView : public QWidget
{
    Q_OBJECT

public:
    explicit LogView(const std::shared_ptr<spdlog::logger>& logger, QWidget* parent = nullptr);
    ~LogView() override;

    [[nodiscard]] LogModel* model() const { return m_model; }

private:
    void createTable();
    void createControls();
    void createLayout();
    void followEnd();
    void showLevel(int entry);
    void copy() const;

    std::unique_ptr<LogSinkAttachment> m_attachment;
    LogModel* m_model;
    LogLevelFilter* m_filter;
    QTableView* m_table = nullptr;
    QComboBox* m_level = nullptr;
    QPushButton* m_copy = nullptr;
    QPushButton* m_clear = nullptr;
    bool m_atEnd = true;
};
