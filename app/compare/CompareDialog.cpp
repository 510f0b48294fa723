#include "app/compare/CompareDialog.h"

#include "analysis/comparison/KeyProposal.h"
#include "analysis/comparison/VariableMatch.h"
#include "app/compare/CompareOptionsPanel.h"
#include "app/compare/NamePicker.h"
#include "app/window/DatasetWindow.h"
#include "data/StatDataset.h"
#include "grid/filter/VariableNames.h"
#include "grid/opened/EngineMessages.h"
#include "grid/WaitCursor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

std::vector<std::string> namesIn(const QString& text)
{
    std::vector<std::string> names;
    for (const WrittenName& name : variablenames::split(text)) {
        names.push_back(name.name.toStdString());
    }
    return names;
}

QString nameOf(const StatDataset& dataset, int variable)
{
    return QString::fromStdString(dataset.names()[static_cast<std::size_t>(variable)]);
}

QString labelOf(const StatDataset& dataset, int variable)
{
    return QString::fromStdString(dataset.labels()[static_cast<std::size_t>(variable)]);
}

QString translated(const std::string& text)
{
    return enginemessages::translated(QString::fromStdString(text));
}

}  // namespace

CompareDialog::CompareDialog(Settings& settings, QWidget* parent)
    : QDialog(parent)
    , m_base(new QComboBox(this))
    , m_compare(new QComboBox(this))
    , m_about(new QLabel(this))
    , m_id(new NamePicker(tr("ID variables"), tr("by position"), this))
    , m_keys(new QLabel(this))
    , m_propose(new QPushButton(tr("&Propose"), this))
    , m_var(new NamePicker(tr("Variables to compare"), tr("all common variables"), this))
    , m_options(new CompareOptionsPanel(settings, this))
    , m_problem(new QLabel(this))
{
    setWindowTitle(tr("Compare Datasets"));
    createSide(*m_base, QStringLiteral("comboBoxBase"));
    createSide(*m_compare, QStringLiteral("comboBoxCompare"));
    createVariables();
    createLayout();
    constexpr QSize roomy(780, 720);
    resize(roomy);
    constexpr int pauseInTyping = 250;  // milliseconds
    m_keysTimer.setSingleShot(true);
    m_keysTimer.setInterval(pauseInTyping);
    connect(&m_keysTimer, &QTimer::timeout, this, &CompareDialog::showKeys);
    connect(m_options, &CompareOptionsPanel::signalFiltersCountChanged, this,
            &CompareDialog::showKeys);
}

void CompareDialog::createSide(QComboBox& side, const QString& name) const
{
    side.setObjectName(name);
    // Long paths are cut; they must not make the dialog wider than the screen.
    side.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int readable = 30;  // characters
    side.setMinimumContentsLength(readable);
    connect(&side, &QComboBox::currentIndexChanged, this, &CompareDialog::followSides);
}

void CompareDialog::createVariables()
{
    m_id->setObjectName(QStringLiteral("pickerId"));
    m_var->setObjectName(QStringLiteral("pickerVar"));
    m_propose->setObjectName(QStringLiteral("buttonPropose"));
    m_propose->setAutoDefault(false);
    m_propose->setToolTip(tr("The key variables of the file, or study, subject, sequence number "
                             "and so on, as many as it takes"));
    m_keys->setObjectName(QStringLiteral("labelKeys"));
    m_keys->setWordWrap(true);
    m_problem->setObjectName(QStringLiteral("labelProblem"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    connect(m_propose, &QPushButton::clicked, this, &CompareDialog::proposeKeys);
    connect(m_id, &NamePicker::signalChanged, this, [this] {
        m_keys->clear();
        m_problem->clear();
        m_keysTimer.start();
    });
    connect(m_var, &NamePicker::signalChanged, m_problem, &QLabel::clear);
}

void CompareDialog::createLayout()
{
    auto* sides = new QGridLayout;
    sides->setColumnStretch(1, 1);
    const auto addSide = [this, sides](int row, const QString& text, QComboBox* side, bool isBase) {
        auto* label = new QLabel(text, this);
        label->setBuddy(side);
        auto* open = new QPushButton(tr("Open File..."), this);
        open->setAutoDefault(false);
        connect(open, &QPushButton::clicked, this,
                [this, isBase] { emit signalOpenRequested(isBase); });
        sides->addWidget(label, row, 0);
        sides->addWidget(side, row, 1);
        sides->addWidget(open, row, 2);
    };
    addSide(0, tr("&Base:"), m_base, true);
    addSide(1, tr("&Compare:"), m_compare, false);
    auto* swap = new QPushButton(tr("S&wap"), this);
    swap->setAutoDefault(false);
    connect(swap, &QPushButton::clicked, this, &CompareDialog::swapSides);
    sides->addWidget(swap, 0, 3, 2, 1);
    sides->addWidget(m_about, 2, 1, 1, 3);

    auto* id = new QGroupBox(tr("ID Variables"), this);
    auto* idColumn = new QVBoxLayout(id);
    idColumn->addWidget(m_id);
    auto* keys = new QHBoxLayout;
    keys->addWidget(m_keys, 1);
    keys->addWidget(m_propose);
    idColumn->addLayout(keys);
    auto* var = new QGroupBox(tr("Variables to Compare"), this);
    auto* varColumn = new QVBoxLayout(var);
    varColumn->addWidget(m_var);
    auto* hint = new QLabel(tr("NAME=OTHER compares variables of different names."), var);
    hint->setWordWrap(true);
    varColumn->addWidget(hint);
    auto* variables = new QHBoxLayout;
    variables->addWidget(id, 1);
    variables->addWidget(var, 1);

    auto* column = new QVBoxLayout(this);
    column->addLayout(sides);
    column->addLayout(variables, 1);
    column->addWidget(m_options);
    column->addWidget(m_problem);
    column->addWidget(createButtons());
}

QWidget* CompareDialog::createButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    m_program = buttons->addButton(tr("&SAS Program"), QDialogButtonBox::ActionRole);
    m_program->setToolTip(tr("Write the program that makes this comparison in SAS"));
    m_program->setAutoDefault(false);
    m_run = buttons->addButton(tr("Compare"), QDialogButtonBox::AcceptRole);
    m_run->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(m_program, &QPushButton::clicked, this, &CompareDialog::signalProgramRequested);
    connect(buttons, &QDialogButtonBox::accepted, this, &CompareDialog::signalCompareRequested);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

// Datasets

void CompareDialog::setDatasets(const QList<DatasetWindow*>& windows)
{
    const QPointer<DatasetWindow> oldBase = base();
    const QPointer<DatasetWindow> oldCompare = compare();
    m_windows.clear();
    for (DatasetWindow* window : windows) {
        m_windows << window;
    }
    for (QComboBox* side : {m_base, m_compare}) {
        const QSignalBlocker quiet(side);
        side->clear();
        for (const DatasetWindow* window : windows) {
            side->addItem(
                window->windowIcon(),
                tr("%1 - %2").arg(window->datasetName(), QDir::toNativeSeparators(window->path())));
        }
        side->setCurrentIndex(-1);
    }
    choose(oldBase, oldCompare);
}

void CompareDialog::choose(DatasetWindow* base, DatasetWindow* compare)
{
    {
        const QSignalBlocker quietBase(m_base);
        const QSignalBlocker quietCompare(m_compare);
        if (base != nullptr) {
            m_base->setCurrentIndex(static_cast<int>(m_windows.indexOf(base)));
        }
        if (compare != nullptr) {
            m_compare->setCurrentIndex(static_cast<int>(m_windows.indexOf(compare)));
        }
    }
    followSides();
}

DatasetWindow* CompareDialog::chosen(const QComboBox& side) const
{
    return m_windows.value(side.currentIndex(), nullptr);
}

DatasetWindow* CompareDialog::base() const
{
    return chosen(*m_base);
}

DatasetWindow* CompareDialog::compare() const
{
    return chosen(*m_compare);
}

void CompareDialog::swapSides()
{
    choose(compare(), base());
}

void CompareDialog::followSides()
{
    m_problem->clear();
    const bool areBoth = base() != nullptr && compare() != nullptr;
    for (QWidget* part :
         std::initializer_list<QWidget*>{m_run, m_program, m_propose, m_id, m_var}) {
        part->setEnabled(areBoth);
    }
    if (!areBoth) {
        m_about->setText(tr("Choose two datasets, open ones or files."));
        m_keys->clear();
        return;
    }
    showVariables(*base(), *compare());
    // What the user has written stays; what was proposed for other datasets does not.
    if (m_id->text() == m_proposed) {
        proposeKeys();
    } else {
        m_keysTimer.start();
    }
}

void CompareDialog::showVariables(const DatasetWindow& base, const DatasetWindow& compare)
{
    const StatDataset& one = *base.dataset();
    const StatDataset& other = *compare.dataset();
    comparison::Request request;
    request.passesOverFilters = true;
    const auto matched = comparison::matchVariables(one, other, request);
    QStringList names;
    QStringList tips;
    for (const comparison::VariablePair& pair : matched.value().common) {
        if (!pair.hasConflictingTypes) {
            names << nameOf(one, pair.base);
            tips << labelOf(one, pair.base);
        }
    }
    m_id->setNames(names, tips);
    m_var->setNames(names, tips);
    const auto sizes = [](const StatDataset& dataset) {
        return tr("%1 x %2").arg(dataset.observationCount()).arg(dataset.variableCount());
    };
    m_about->setText(tr("Observations x variables: %1 and %2; variables in common: %3")
                         .arg(sizes(one), sizes(other))
                         .arg(matched.value().common.size()));
}

// ID variables

void CompareDialog::proposeKeys()
{
    const WaitCursor wait;
    QStringList names;
    for (const std::string& name :
         comparison::proposedKeys(*base()->dataset(), *compare()->dataset())) {
        names << variablenames::written(QString::fromStdString(name));
    }
    m_proposed = names.join(u' ');
    m_id->setText(m_proposed);
    m_keysTimer.stop();
    showKeys();
}

void CompareDialog::showKeys()
{
    if (base() != nullptr && compare() != nullptr) {
        m_keys->setText(keysText());
    }
}

/// Whether the ID variables tell the observations apart.
QString CompareDialog::keysText() const
{
    const std::vector<std::string> names = namesIn(m_id->text());
    if (names.empty()) {
        return tr("Observations are matched by their position.");
    }
    const WaitCursor wait;
    std::size_t repeated = 0;
    for (const DatasetWindow* window : {base(), compare()}) {
        const auto found =
            comparison::repeatedKeys(*window->dataset(), names, !m_options->filtersCount());
        if (!found) {
            return tr("%1: %2").arg(window->datasetName(), translated(found.error()));
        }
        repeated += found.value();
    }
    return repeated == 0
        ? tr("Each observation has ID values of its own.")
        : tr("Observations that repeat ID values: %1; they are paired in their order.")
              .arg(repeated);
}

// What is asked for

Result<comparison::Request> CompareDialog::request() const
{
    comparison::Request request;
    request.id = namesIn(m_id->text());
    bool hasPartners = false;
    for (const std::string& name : namesIn(m_var->text())) {
        const std::size_t equals = name.find('=');
        hasPartners = hasPartners || equals != std::string::npos;
        request.var.push_back(name.substr(0, equals));
        request.with.push_back(equals == std::string::npos ? name : name.substr(equals + 1));
    }
    if (!hasPartners) {
        request.with.clear();
    }
    return m_options->added(std::move(request));
}

Result<comparison::ReportOptions> CompareDialog::reportOptions() const
{
    return m_options->reportOptions();
}

bool CompareDialog::filtersCount() const
{
    return m_options->filtersCount();
}

void CompareDialog::tell(const QString& text)
{
    m_problem->setText(text);
}

void CompareDialog::rememberOptions() const
{
    m_options->remember();
}
