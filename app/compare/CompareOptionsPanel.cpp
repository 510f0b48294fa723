#include "app/compare/CompareOptionsPanel.h"

#include "analysis/comparison/CompareWords.h"
#include "app/start/Settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

using comparison::Method;
using comparison::ReportOptions;

/// The property that a user changes; of a list the entry's number, as its text is translated.
QByteArray changedProperty(const QWidget& widget)
{
    return qobject_cast<const QComboBox*>(&widget) != nullptr
        ? QByteArray("currentIndex")
        : QByteArray(widget.metaObject()->userProperty().name());
}

/// A number that may be missing.
Result<std::optional<double>> numberIn(const QLineEdit& line)
{
    const QString text = line.text().trimmed();
    if (text.isEmpty() || !line.isEnabled()) {
        return std::optional<double>();
    }
    const Result<double> number = comparison::numberOf(text.toStdString());
    if (!number) {
        return Failure{number.error()};
    }
    return std::optional(number.value());
}

}  // namespace

CompareOptionsPanel::CompareOptionsPanel(Settings& settings, QWidget* parent)
    : QWidget(parent)
    , m_settings(settings)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createValues(), 1);
    layout->addWidget(createReport(), 1);
    showMethod();
}

QGroupBox* CompareOptionsPanel::createValues()
{
    auto* group = new QGroupBox(tr("What Is Equal"), this);
    m_method = new QComboBox(group);
    for (const Method method :
         {Method::Exact, Method::Absolute, Method::Relative, Method::Percent}) {
        m_method->addItem(QString::fromLatin1(nameOf(method)));
    }
    recall(m_method, u"method"_s);
    connect(m_method, &QComboBox::currentIndexChanged, this, &CompareOptionsPanel::showMethod);
    m_criterion = addLine(u"criterion"_s, u"0.00001"_s,
                          tr("Larger differences are unequal; a negative number counts machine "
                             "epsilons, -1000 means equal up to rounding"));
    m_delta = addLine(u"delta"_s, u"0"_s,
                      tr("0 to 1; keeps differences of numbers near 0 from counting"));
    m_own = addLine(u"own"_s, u"AVAL=0.001 CHG=0.01:absolute"_s,
                    tr("Criteria of single variables: VARIABLE=NUMBER, with a method of its own "
                       "VARIABLE=NUMBER:METHOD"));
    m_remembered.remove(m_own->objectName());  // other datasets have other variables
    auto* form = new QFormLayout;
    form->addRow(tr("&Method:"), m_method);
    form->addRow(tr("C&riterion:"), m_criterion);
    form->addRow(tr("De&lta:"), m_delta);
    form->addRow(tr("Cri&teria of variables:"), m_own);
    auto* boxes = new QGridLayout;
    addBox(*boxes, 0, 0, u"missingBase"_s, tr("Missing in base equals all (NOMISSBASE)"));
    addBox(*boxes, 1, 0, u"missingCompare"_s, tr("Missing in compare equals all (NOMISSCOMP)"));
    QCheckBox* filters =
        addBox(*boxes, 2, 0, u"filtersCount"_s, tr("Filters and hidden variables count"));
    filters->setToolTip(
        tr("Compare only the observations and variables that the grids show at the moment"));
    connect(filters, &QCheckBox::toggled, this, &CompareOptionsPanel::signalFiltersCountChanged);
    form->addRow(boxes);
    group->setLayout(form);
    return group;
}

QGroupBox* CompareOptionsPanel::createReport()
{
    auto* group = new QGroupBox(tr("Report"), this);
    auto* boxes = new QGridLayout;
    addBox(*boxes, 0, 0, u"listVariables"_s, tr("Variables of one side"))->setToolTip(u"LISTVAR"_s);
    addBox(*boxes, 1, 0, u"listObservations"_s, tr("Observations of one side"))
        ->setToolTip(u"LISTOBS"_s);
    addBox(*boxes, 2, 0, u"listEqual"_s, tr("Variables with equal values"))
        ->setToolTip(u"LISTEQUALVAR"_s);
    addBox(*boxes, 0, 1, u"brief"_s, tr("Brief summary"))->setToolTip(u"BRIEFSUMMARY"_s);
    addBox(*boxes, 1, 1, u"transpose"_s, tr("Values by observation"))->setToolTip(u"TRANSPOSE"_s);
    addBox(*boxes, 2, 1, u"statistics"_s, tr("Statistics"))->setToolTip(u"STATS"_s);

    const ReportOptions standard;
    constexpr int most = 1'000'000;
    auto* limits = new QHBoxLayout;
    limits->addWidget(
        addNumber(u"maxPerVariable"_s, 0, most, static_cast<int>(standard.maxPerVariable)));
    limits->addWidget(new QLabel(tr("in total:"), group));
    limits->addWidget(addNumber(u"maxTotal"_s, 0, most, static_cast<int>(standard.maxTotal)));
    limits->addStretch();
    auto* widths = new QHBoxLayout;
    widths->addWidget(addNumber(u"lineSize"_s, ReportOptions::smallestLine,
                                ReportOptions::largestLine, standard.lineSize));
    widths->addWidget(new QLabel(tr("of texts:"), group));
    constexpr int shortest = 8;
    constexpr int longest = 200;
    widths->addWidget(addNumber(u"textWidth"_s, shortest, longest, standard.textWidth));
    widths->addStretch();
    m_fuzz = addLine(u"fuzz"_s, u"0"_s,
                     tr("Smaller values are printed as 0, smaller differences not at all"));

    auto* form = new QFormLayout(group);
    form->addRow(boxes);
    form->addRow(tr("Differences per variable:"), limits);
    form->addRow(tr("Width of lines:"), widths);
    form->addRow(tr("F&uzz:"), m_fuzz);
    return group;
}

QCheckBox* CompareOptionsPanel::addBox(QGridLayout& grid, int row, int column, const QString& name,
                                       const QString& text)
{
    auto* box = new QCheckBox(text, this);
    recall(box, name);
    grid.addWidget(box, row, column);
    return box;
}

QSpinBox* CompareOptionsPanel::addNumber(const QString& name, int smallest, int largest, int value)
{
    auto* box = new QSpinBox(this);
    box->setRange(smallest, largest);
    box->setValue(value);
    recall(box, name);
    return box;
}

QLineEdit* CompareOptionsPanel::addLine(const QString& name, const QString& placeholder,
                                        const QString& tip)
{
    auto* line = new QLineEdit(this);
    line->setPlaceholderText(placeholder);
    line->setToolTip(tip);
    recall(line, name);
    return line;
}

void CompareOptionsPanel::recall(QWidget* widget, const QString& name)
{
    widget->setObjectName(name);
    const QByteArray property = changedProperty(*widget);
    widget->setProperty(property, m_settings.compareOption(name, widget->property(property)));
    m_remembered.insert(name, widget);
}

void CompareOptionsPanel::remember() const
{
    for (auto entry = m_remembered.begin(); entry != m_remembered.end(); ++entry) {
        const QWidget& widget = *entry.value();
        m_settings.setCompareOption(entry.key(), widget.property(changedProperty(widget)));
    }
}

/// Exact comparisons have no criterion, and only relative ones a delta.
void CompareOptionsPanel::showMethod()
{
    const auto method = static_cast<Method>(std::max(m_method->currentIndex(), 0));
    m_criterion->setEnabled(method != Method::Exact);
    m_delta->setEnabled(method == Method::Relative);
}

bool CompareOptionsPanel::isChecked(const QString& name) const
{
    return m_remembered.value(name)->property("checked").toBool();
}

int CompareOptionsPanel::number(const QString& name) const
{
    return m_remembered.value(name)->property("value").toInt();
}

bool CompareOptionsPanel::filtersCount() const
{
    return isChecked(u"filtersCount"_s);
}

Result<comparison::Request> CompareOptionsPanel::added(comparison::Request request) const
{
    const auto criterion = numberIn(*m_criterion);
    const auto delta = numberIn(*m_delta);
    for (const auto& read : {criterion, delta}) {
        if (!read) {
            return Failure{read.error()};
        }
    }
    request.method = static_cast<Method>(std::max(m_method->currentIndex(), 0));
    request.criterion = criterion.value();
    request.delta = delta.value();
    for (const QString& text : m_own->text().split(u' ', Qt::SkipEmptyParts)) {
        const auto own = comparison::criterionOf(text.toStdString());
        if (!own) {
            return Failure{own.error()};
        }
        request.variableCriteria.push_back(own.value());
    }
    request.missingBaseEqualsAll = isChecked(u"missingBase"_s);
    request.missingCompareEqualsAll = isChecked(u"missingCompare"_s);
    request.passesOverFilters = !filtersCount();
    return request;
}

Result<comparison::ReportOptions> CompareOptionsPanel::reportOptions() const
{
    const auto fuzz = numberIn(*m_fuzz);
    if (!fuzz) {
        return Failure{fuzz.error()};
    }
    ReportOptions options;
    options.fuzz = fuzz.value().value_or(0);
    options.lineSize = number(u"lineSize"_s);
    options.textWidth = number(u"textWidth"_s);
    options.maxPerVariable = static_cast<std::size_t>(number(u"maxPerVariable"_s));
    options.maxTotal = static_cast<std::size_t>(number(u"maxTotal"_s));
    options.listBaseVariables = options.listCompareVariables = isChecked(u"listVariables"_s);
    options.listBaseObservations = options.listCompareObservations =
        isChecked(u"listObservations"_s);
    options.listEqualVariables = isChecked(u"listEqual"_s);
    options.brief = isChecked(u"brief"_s);
    options.transpose = isChecked(u"transpose"_s);
    options.statistics = isChecked(u"statistics"_s);
    return options;
}
