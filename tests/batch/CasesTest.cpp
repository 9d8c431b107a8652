// Runs the batch program as each folder under cases/ says and compares what can be seen from
// outside. The program runs in a folder of its own that begins as a copy of the case's `files` and
// holds `home`, a program folder with one Perlin set. The other files of a case, all optional:
//
//   arguments        the command line, one argument a line, \n in it being a line break; an empty
//                    line begins another run in the same folder
//   stdin            standard input of each run
//   status           the expected exit statuses, a line a run (0)
//   stdout, stderr   what all runs are to print, in full (nothing)
//   stdout-pattern   a shell pattern in place of stdout; likewise stderr-pattern
//   expected/        files that must be there afterwards, with that content
//   expected.sha256  the same as the checksums that sha256sum prints
//   absent           names that must not exist afterwards, one a line
//   kept             names out of `files` that must be untouched
//   same, differ     names in lines, whose files must have the same content, or any two another
//   pictures         names of pictures, each with its width and height
//   limit            the largest size of a file that the program may write, in bytes
//   terminal         when it exists, standard error is a terminal
//   twice            when it exists, doing it all again must leave the same files

#include <fnmatch.h>
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <algorithm>
#include <iterator>
#include <sstream>

#include "base/Picture.h"
#include "tests/batch/Program.h"

namespace quillbrand {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Lines(const fs::path& path) {
    std::vector<std::string> lines;
    std::istringstream text(TextOrNothing(path));
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

std::vector<std::string> Words(const std::string& line) {
    std::istringstream text(line);
    return {std::istream_iterator<std::string>(text), {}};
}

std::string WithLineBreaks(std::string argument) {
    for (std::size_t at = 0; (at = argument.find("\\n", at)) != std::string::npos;)
        argument.replace(at, 2, "\n");
    return argument;
}

/// The arguments of each run.
std::vector<std::vector<std::string>> Runs(const fs::path& description) {
    std::vector<std::vector<std::string>> runs(1);
    for (const std::string& line : Lines(description / "arguments")) {
        if (line.empty())
            runs.emplace_back();
        else
            runs.back().push_back(WithLineBreaks(line));
    }
    return runs;
}

std::string Sha256(const Bytes& content) {
    return QCryptographicHash::hash(QByteArrayView(reinterpret_cast<const char*>(content.data()),
                                                   static_cast<qsizetype>(content.size())),
                                    QCryptographicHash::Sha256)
        .toHex()
        .toStdString();
}

void RunAll(Program& program, const fs::path& description) {
    const RunSetting setting{.input = TextOrNothing(description / "stdin"),
                             .mostBytes = TextOrNothing(description / "limit"),
                             .errorsToTerminal = fs::exists(description / "terminal")};
    const std::vector<std::string> statuses = Lines(description / "status");
    std::size_t number = 0;
    for (const auto& arguments : Runs(description)) {
        const int status = program.Run(arguments, setting);
        const int expected = number < statuses.size() ? std::stoi(statuses[number]) : 0;
        ++number;
        EXPECT_EQ(status, expected) << "of run " << number;
    }
}

/// Compares with the file `name` of the case, or with its pattern.
void ExpectText(const std::string& text, const fs::path& description, const std::string& name) {
    const std::string pattern = TextOrNothing(description / (name + "-pattern"));
    if (pattern.empty()) {
        EXPECT_EQ(text, TextOrNothing(description / name));
    } else {
        EXPECT_EQ(fnmatch(pattern.c_str(), text.c_str(), 0), 0) << name << ": " << text;
    }
}

/// What the expected/ of a case holds, by name.
std::map<std::string, std::string> ExpectedFiles(const fs::path& description) {
    std::map<std::string, std::string> files;
    if (fs::exists(description / "expected"))
        for (const auto& entry : fs::directory_iterator(description / "expected"))
            files[entry.path().filename()] = TextOf(entry.path());
    return files;
}

void ExpectContents(const Program& program, const fs::path& description) {
    for (const auto& [name, content] : ExpectedFiles(description))
        EXPECT_EQ(TextOf(program / name), content) << name;
    for (const std::string& line : Lines(description / "expected.sha256")) {
        const auto words = Words(line);
        EXPECT_EQ(Sha256(Contents(program / words.at(1))), words.at(0)) << line;
    }
    for (const std::string& name : Lines(description / "absent"))
        EXPECT_FALSE(fs::exists(program / name)) << name;
    for (const std::string& name : Lines(description / "kept"))
        EXPECT_EQ(TextOf(program / name), TextOf(description / "files" / name)) << name;
}

void ExpectLikeness(const Program& program, const fs::path& description) {
    for (const std::string& line : Lines(description / "same")) {
        std::map<std::string, std::string> contents;
        for (const std::string& name : Words(line))
            contents.try_emplace(TextOf(program / name), name);
        EXPECT_EQ(contents.size(), 1u) << line;
    }
    for (const std::string& line : Lines(description / "differ")) {
        std::map<std::string, std::string> contents;
        for (const std::string& name : Words(line)) {
            const auto [other, isNew] = contents.try_emplace(TextOf(program / name), name);
            EXPECT_TRUE(isNew) << name << " is " << other->second;
        }
    }
}

class Cases : public testing::TestWithParam<fs::path> {};

TEST_P(Cases, DoWhatTheirFilesSay) {
    const fs::path& description = GetParam();
    Program program(description / "files");
    RunAll(program, description);
    ExpectText(program.Output(), description, "stdout");
    ExpectText(program.Errors(), description, "stderr");
    ExpectContents(program, description);
    ExpectLikeness(program, description);
    for (const std::string& line : Lines(description / "pictures")) {
        const Picture picture = Picture::Load(program / Words(line).at(0));
        const std::string sides =
            std::to_string(picture.Width()) + " " + std::to_string(picture.Height());
        EXPECT_EQ(Words(line).at(0) + " " + sides, line);
    }

    const auto files = program.Files();
    for (const auto& [name, content] : files)
        EXPECT_FALSE(fs::path(name).filename().string().starts_with(".")) << name << " is left";
    if (fs::exists(description / "twice")) {
        Program again(description / "files");
        RunAll(again, description);
        EXPECT_EQ(again.Files(), files);
    }
}

std::vector<fs::path> AllCases() {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::directory_iterator(QB_BATCH_CASES))
        cases.push_back(entry.path());
    std::sort(cases.begin(), cases.end());
    return cases;
}

std::string NameOf(const testing::TestParamInfo<fs::path>& info) {
    std::string name = info.param.filename().string();
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Batch, Cases, testing::ValuesIn(AllCases()), NameOf);

}  // namespace
}  // namespace quillbrand
