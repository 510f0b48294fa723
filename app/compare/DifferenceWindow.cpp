#include "app/compare/DifferenceWindow.h"

#include "app/compare/DifferenceView.h"
#include "app/look/Icons.h"
#include "app/window/ElidedLabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSaveFile>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

using comparison::Comparison;

namespace {

struct Bit
{
    comparison::SysInfo bit;
    const char* meaning;
};

constexpr std::array bits{
    Bit{comparison::DatasetLabel, QT_TRANSLATE_NOOP("DifferenceWindow", "Dataset labels differ")},
    Bit{comparison::DatasetType, QT_TRANSLATE_NOOP("DifferenceWindow", "Dataset types differ")},
    Bit{comparison::Informat, QT_TRANSLATE_NOOP("DifferenceWindow", "Informats differ")},
    Bit{comparison::Format, QT_TRANSLATE_NOOP("DifferenceWindow", "Formats differ")},
    Bit{comparison::Length, QT_TRANSLATE_NOOP("DifferenceWindow", "Lengths differ")},
    Bit{comparison::Label, QT_TRANSLATE_NOOP("DifferenceWindow", "Labels differ")},
    Bit{comparison::BaseObservation,
        QT_TRANSLATE_NOOP("DifferenceWindow", "Observations are only in base")},
    Bit{comparison::CompareObservation,
        QT_TRANSLATE_NOOP("DifferenceWindow", "Observations are only in compare")},
    Bit{comparison::BaseVariable,
        QT_TRANSLATE_NOOP("DifferenceWindow", "Variables are only in base")},
    Bit{comparison::CompareVariable,
        QT_TRANSLATE_NOOP("DifferenceWindow", "Variables are only in compare")},
    Bit{comparison::Value, QT_TRANSLATE_NOOP("DifferenceWindow", "Values are unequal")},
    Bit{comparison::Type, QT_TRANSLATE_NOOP("DifferenceWindow", "Types of variables conflict")},
};

/// The bits of the return code, a line each.
QString meaningOf(unsigned sysInfo)
{
    QStringList lines;
    for (const Bit& bit : bits) {
        if ((sysInfo & bit.bit) != 0) {
            lines << DifferenceWindow::tr("%1: %2").arg(bit.bit).arg(
                DifferenceWindow::tr(bit.meaning));
        }
    }
    return lines.join(u'\n');
}

}  // namespace

DifferenceWindow::DifferenceWindow(std::shared_ptr<const Comparison> comparison, QWidget* parent)
    : QWidget(parent)
    , m_comparison(std::move(comparison))
    , m_view(new DifferenceView(m_comparison, this))
    , m_onlyVariables(new QCheckBox(tr("Only differing &variables"), this))
    , m_onlyObservations(new QCheckBox(tr("Only differing &observations"), this))
    , m_percent(new QCheckBox(tr("&Percent"), this))
    , m_place(new QLabel(this))
    , m_wrapping(new QLabel(this))
    , m_hidden(new QLabel(this))
{
    setWindowTitle(tr("Compare %1 with %2")
                       .arg(QString::fromStdString(m_comparison->baseName()),
                            QString::fromStdString(m_comparison->compareName())));
    setWindowIcon(icons::icon(QStringLiteral("compare")));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 4, 0, 0);
    column->setSpacing(4);
    column->addLayout(createSummary());
    column->addLayout(createBar());
    column->addWidget(m_view);
    setFocusProxy(m_view);
    connect(m_view, &DifferenceView::signalRowChosen, this, &DifferenceWindow::signalRowChosen);
    connect(m_view, &DifferenceView::signalPlaceChanged, this, &DifferenceWindow::showPlace);
    connect(m_view, &DifferenceView::signalWrapped, this, &DifferenceWindow::showWrapping);
    showPlace();
}

QBoxLayout* DifferenceWindow::createSummary()
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(16);
    const auto add = [this, row](const QString& text) {
        auto* label = new ElidedLabel(text, this);
        label->setTextFormat(Qt::PlainText);
        row->addWidget(label);
        return label;
    };
    const auto& observations = m_comparison->observations();
    m_base = add(tr("Base: %1 (observations: %L2)")
                     .arg(QString::fromStdString(m_comparison->baseName()))
                     .arg(observations.base.read));
    m_compare = add(tr("Compare: %1 (observations: %L2)")
                        .arg(QString::fromStdString(m_comparison->compareName()))
                        .arg(observations.compare.read));
    add(tr("Method: %1").arg(QString::fromStdString(ruleText(m_comparison->rule()))));
    const unsigned sysInfo = m_comparison->sysInfo();
    QLabel* outcome = add(sysInfo == 0 ? tr("Equal") : tr("SYSINFO: %1").arg(sysInfo));
    outcome->setObjectName(QStringLiteral("outcome"));
    outcome->setToolTip(meaningOf(sysInfo));
    row->addStretch();
    auto* together = new QCheckBox(tr("Scroll &together"), this);
    together->setToolTip(tr("Going to a row of one dataset goes to its partner in the other"));
    together->setChecked(true);
    connect(together, &QCheckBox::toggled, this, &DifferenceWindow::signalTogetherChanged);
    row->addWidget(together);
    return row;
}

void DifferenceWindow::setFiles(const QString& base, const QString& compare)
{
    m_base->setToolTip(base);
    m_compare->setToolTip(compare);
}

QBoxLayout* DifferenceWindow::createBar()
{
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(8, 0, 8, 0);
    bar->setSpacing(8);
    const auto& filter = m_view->differences().filter();
    m_onlyVariables->setChecked(filter.onlyDifferingVariables);
    m_onlyObservations->setChecked(filter.onlyDifferingObservations);
    m_percent->setToolTip(tr("Show differences in percent of the base, too"));
    m_percent->setChecked(filter.percent);
    for (QCheckBox* box : {m_onlyVariables, m_onlyObservations, m_percent}) {
        bar->addWidget(box);
        connect(box, &QCheckBox::toggled, this, &DifferenceWindow::applyFilter);
    }
    bar->addSpacing(8);
    m_previous =
        addWay(*bar, tr("Previous"), tr("Previous difference (%1 or %2)"), Qt::UpArrow,
               {Qt::SHIFT | Qt::Key_F8, Qt::ALT | Qt::Key_Up}, &DifferenceView::goToPrevious);
    m_next = addWay(*bar, tr("Next"), tr("Next difference (%1 or %2)"), Qt::DownArrow,
                    {Qt::Key_F8, Qt::ALT | Qt::Key_Down}, &DifferenceView::goToNext);
    m_place->setObjectName(QStringLiteral("place"));
    m_wrapping->setObjectName(QStringLiteral("wrapping"));
    m_hidden->setObjectName(QStringLiteral("hidden"));
    bar->addWidget(m_place);
    bar->addWidget(m_wrapping);
    bar->addWidget(m_hidden);
    bar->addStretch();
    auto* saving = new QToolButton(this);
    saving->setText(tr("&Save..."));
    saving->setIcon(icons::icon(QStringLiteral("save")));
    saving->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    saving->setAutoRaise(true);
    saving->setFocusPolicy(Qt::TabFocus);
    saving->setToolTip(tr("Save all differences as a table"));
    connect(saving, &QToolButton::clicked, this, &DifferenceWindow::signalSaveRequested);
    bar->addWidget(saving);
    return bar;
}

/// A button and its keys, which act wherever the focus is in this window.
QToolButton* DifferenceWindow::addWay(QBoxLayout& bar, const QString& text, const QString& tip,
                                      Qt::ArrowType arrow, const QList<QKeySequence>& keys,
                                      void (DifferenceView::*go)())
{
    auto* button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setText(text);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setToolTip(tip.arg(keys.first().toString(QKeySequence::NativeText),
                               keys.last().toString(QKeySequence::NativeText)));
    connect(button, &QToolButton::clicked, m_view, go);
    bar.addWidget(button);
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(keys);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, m_view, go);
    return button;
}

void DifferenceWindow::applyFilter()
{
    comparison::DifferenceFilter filter = m_view->differences().filter();
    filter.onlyDifferingVariables = m_onlyVariables->isChecked();
    filter.onlyDifferingObservations = m_onlyObservations->isChecked();
    filter.percent = m_percent->isChecked();
    m_view->setFilter(filter);
}

void DifferenceWindow::showPlace()
{
    const DifferenceModel& model = m_view->differences();
    const auto& rows = model.rows();
    const std::size_t count = rows.differenceCount();
    const QModelIndex current = m_view->currentIndex();
    if (current.isValid() && rows.isDifference(model.placeOf(current))) {
        m_place->setText(tr("Difference %L1 of %L2")
                             .arg(rows.differencesBefore(model.placeOf(current)) + 1)
                             .arg(count));
    } else {
        m_place->setText(tr("Differences: %L1").arg(count));
    }
    m_wrapping->clear();
    m_previous->setEnabled(count > 0);
    m_next->setEnabled(count > 0);
    const int hidden = m_view->hiddenVariables();
    m_hidden->setHidden(hidden == 0);
    m_hidden->setText(tr("Hidden variables: %1").arg(hidden));
}

void DifferenceWindow::showWrapping(bool forwards)
{
    m_wrapping->setText(forwards ? tr("Went on from the first difference")
                                 : tr("Went on from the last difference"));
}

std::optional<QString> DifferenceWindow::save(const QString& path) const
{
    using comparison::ListFormat;
    const ListFormat format = path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)
        ? ListFormat::Csv
        : ListFormat::Tsv;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    const comparison::DifferenceList differences(*m_comparison);
    const auto write = [&](const comparison::DifferenceList::Line& line) {
        const std::string text = listLine(line, format);
        file.write(text.data(), static_cast<qint64>(text.size()));
    };
    write(differences.titles());
    differences.forEachLine(write);
    return file.commit() ? std::nullopt : std::optional(file.errorString());
}
