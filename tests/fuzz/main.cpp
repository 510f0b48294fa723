#include "tests/fuzz/FuzzRun.h"

#include <CLI/CLI.hpp>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace {

constexpr int misuseCode = 2;

struct Arguments
{
    int seconds = 60;
    std::vector<std::string> corpusFolders;
    std::string replayFile;
    std::string format;
    fuzz::RunOptions options;
};

/// A folder in memory where there is one; gone with its object.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::error_code ignored;
        const std::filesystem::path memory = "/dev/shm";
        const auto parent = std::filesystem::is_directory(memory, ignored)
            ? memory
            : std::filesystem::temp_directory_path();
        std::string name = parent / "quorlane-fuzz-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error(name + ": cannot be made");
        }
        m_path = name;
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

void defineOptions(CLI::App& app, Arguments& arguments)
{
    auto& limits = arguments.options.limits;
    app.add_option("--seconds", arguments.seconds, "How long to run")->capture_default_str();
    app.add_option("--count", arguments.options.count, "Mutants to make, however long it takes");
    app.add_option("--seed", arguments.options.seed, "Which sequence of mutants")
        ->capture_default_str();
    app.add_option("--first", arguments.options.first, "Number of the first mutant of it")
        ->capture_default_str();
    app.add_option("--corpus", arguments.corpusFolders, "More files to damage, from this folder")
        ->check(CLI::ExistingDirectory);
    app.add_option("--format", arguments.format, "Damage files of this kind only")
        ->check(CLI::IsMember({"sas7bdat", "xpt", "sav", "dta"}));
    app.add_option("--replay", arguments.replayFile, "Open this file as it is, and nothing else")
        ->check(CLI::ExistingFile);
    app.add_option("--limit-seconds", limits.seconds, "Processor time that a mutant may take")
        ->capture_default_str();
    app.add_option("--limit-kib", limits.kibibytes, "Memory that a mutant may take")
        ->capture_default_str();
}

int run(const Arguments& arguments)
{
    const TemporaryFolder folder;
    if (!arguments.replayFile.empty()) {
        return fuzz::replay(arguments.replayFile, arguments.options.limits, folder.path());
    }
    fuzz::Corpus corpus = fuzz::makeCorpus(folder.path());
    for (const auto& more : arguments.corpusFolders) {
        fuzz::addFolder(corpus, more);
    }
    if (!arguments.format.empty()) {
        fuzz::keepOnly(corpus, "." + arguments.format);
    }
    std::cout << corpus.size() << " files to damage, seed " << arguments.options.seed << std::endl;
    return fuzz::FuzzRun(corpus, arguments.options, folder.path()).run();
}

}  // namespace

int main(int argc, char* argv[])
{
    Arguments arguments;
    CLI::App app(
        "Opens damaged data files and looks for crashes, hangs, leaks and broken promises.",
        "quorlane-fuzz");
    try {
        defineOptions(app, arguments);
        app.parse(argc, argv);
        arguments.options.duration = std::chrono::seconds(arguments.seconds);
        return run(arguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : misuseCode;
    } catch (const std::exception& error) {
        std::cerr << "quorlane-fuzz: " << error.what() << '\n';
        return misuseCode;
    }
}
