// Any bytes as the file of a saved problem, opened by the Load command over a problem that is solved.
//
// Bytes made by chance alone hardly ever reach the paper, so every second mutation begins with a file
// that was saved of a topic and harms it as files are harmed: cut off, a separator doubled, a number
// blown up, bytes of something else in between.
#include "Catalogue.hpp"
#include "Examples.hpp"
#include "FreshProgram.hpp"
#include "PlainPlatform.hpp"
#include "RandomDraws.hpp"
#include "SavedProblems.hpp"
#include "WindowRoutines.hpp"
#include "Windows.hpp"
#include "Workspace.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <string>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace ordwise::fuzz {
namespace {

constexpr const char* path = "problem.hvx";

// The outside with windows that run their routines, and the letters of a polynomial answered.
class Desk {
public:
    Desk() {
        platform.windows = &windows_;
        startFreshProgram();
    }
    void open(std::string_view topic) {
        TreeViewSelect(topic);
        loadWindow("frmPaper");
        answerAll();
    }
    void load(const std::string& bytes) {
        outside_.files.contents[path] = bytes;
        outside_.fileDialogs.answers = {path};
        answerAll();
        try {
            mnuLoad_Click();
        } catch (const NoAnswerLeft&) {
            asked_ = true;  // which letter a line is solved for is asked until a letter is answered
        }
    }
    // A person was asked more than this outside answers.
    [[nodiscard]] bool asked() const { return asked_; }

private:
    void answerAll() { outside_.dialogs.answers.assign(10, "3"); }

    PlainPlatform outside_;
    UnseenWindows windows_;
    bool asked_ = false;
};

std::string savedExample(const TopicRow& topic, int level) {
    Desk desk;
    desk.open(topic.name);
    seedDraws(static_cast<std::uint64_t>(topic.code));
    ws.ComplexExamples = level;
    try {
        (void)example_Click();
    } catch (const NoAnswerLeft&) {
    }
    return textOfProblem(problemOnDesk());
}

const std::vector<std::string>& savedFiles() {
    static const std::vector<std::string> files = [] {
        std::vector<std::string> all;
        for (const TopicRow& topic : topicTable()) {
            for (const int level : {0, complexLevel}) all.push_back(savedExample(topic, level));
        }
        return all;
    }();
    return files;
}

constexpr std::string_view separator = " BB ";

// The start of the n-th field, round and round.
std::size_t fieldStart(const std::string& file, std::size_t n) {
    std::vector<std::size_t> starts{0};
    for (std::size_t at = file.find(separator); at != file.npos; at = file.find(separator, at + separator.size()))
        starts.push_back(at + separator.size());
    return starts[n % starts.size()];
}

void harm(std::string& file, std::mt19937& draws) {
    const auto below = [&](std::size_t limit) { return limit == 0 ? 0 : draws() % limit; };
    static const std::string numbers[] = {"99999999999999999999", "-32769", "32768",    "1e308",
                                          "2147483648",           "-1",     "0.000001", "-99999999999"};
    switch (below(6)) {
        case 0: file.resize(below(file.size() + 1)); break;
        case 1: file.insert(fieldStart(file, draws()), separator); break;
        case 2: file.insert(fieldStart(file, draws()), numbers[below(std::size(numbers))]); break;
        case 3:
            for (std::size_t i = below(20) + 1; i > 0; --i)
                file.insert(below(file.size() + 1), 1, static_cast<char>(below(256)));
            break;
        case 4: {  // two files run into each other
            const std::string& other = savedFiles()[below(savedFiles().size())];
            file = file.substr(0, fieldStart(file, draws())) + other.substr(fieldStart(other, draws()));
            break;
        }
        default: file.erase(below(file.size() + 1), below(12) + 1); break;
    }
}

void check(bool holds) {
    if (!holds) std::abort();
}

// A desk with a solved problem, laid out anew only when a file has taken its place.
Desk& solvedDesk(bool fresh) {
    static std::unique_ptr<Desk> desk;
    if (!fresh && desk != nullptr) return *desk;
    desk.reset();
    desk = std::make_unique<Desk>();
    desk->open("Ratios");
    (void)ExampleChop("3:4", false);
    return *desk;
}

// What the file leaves: its problem on the desk, whole, or the desk as it was.
void openFile(const std::string& bytes) {
    static bool taken = true;
    Desk& desk = solvedDesk(taken);
    taken = true;
    const SavedProblem before = problemOnDesk();
    desk.load(bytes);
    if (desk.asked()) return;
    check(frmMain.MousePointer == ws.NormalPointer);
    const SavedProblem after = problemOnDesk();
    const std::optional<SavedProblem> problem = problemOfText(bytes);
    if (problem && !refusedKeyOf(*problem)) {
        check(after.topic == problem->topic && after.boxes == problem->boxes);
        check(problemOfText(textOfProblem(after)) == after);
        return;
    }
    check(after == before);
    taken = false;
}

}  // namespace
}  // namespace ordwise::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ordwise::fuzz::openFile(std::string(data, data + size));
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    using namespace ordwise::fuzz;
    std::mt19937 draws(seed);
    if (draws() % 2 == 0) return LLVMFuzzerMutate(data, size, maxSize);
    std::string file = savedFiles()[draws() % savedFiles().size()];
    for (unsigned times = draws() % 3 + 1; times > 0; --times) harm(file, draws);
    file.resize(std::min(file.size(), maxSize));
    std::copy(file.begin(), file.end(), data);
    return file.size();
}
