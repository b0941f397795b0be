// ordwise-cli at pipes, full disks and files that are none, as a shell puts it there.
#include "Process.hpp"
#include "Sanitized.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <unistd.h>

namespace ordwise::test {
namespace {

namespace fs = std::filesystem;

// Runs a line of the shell in an empty folder. $0 is the program, $R a request.
class Shell : public testing::Test {
protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "ordwise-shell.XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        folder_ = pattern;
    }
    void TearDown() override { fs::remove_all(folder_); }

    Outcome sh(const std::string& line, const std::string& input = "") const {
        const std::string start = "cd '" + folder_.string() + "'; R='" + request + "'; ";
        return run({"/bin/sh", "-c", start + line, ORDWISE_CLI}, input);
    }

    const std::string request = R"({"op":"keys","topic":"Arithmetic","text":"2"})";
    const std::string answer =
        R"({"topic":"Arithmetic","type":91,"keys":[{"key":"2","accepted":true,"reason":"","typed":"2","markup":"2","canSolve":true}]})"
        "\n";

private:
    fs::path folder_;
};

void expectSentence(const Outcome& outcome, const std::string& sentence) {
    EXPECT_EQ(outcome.status, 2) << sentence;
    EXPECT_EQ(outcome.err, "ordwise-cli: " + sentence + "\n");
}

TEST_F(Shell, TellsThatOutputWasLost) {
    const std::string commands[] = {"topics",
                                    "solve Arithmetic 2+3",
                                    "solve Arithmetic 2+q --json",
                                    "test --section Ratios:1",
                                    "batch",
                                    "--help",
                                    "--version",
                                    "solve --help"};
    for (const std::string& command : commands) {
        SCOPED_TRACE(command);
        expectSentence(sh("echo \"$R\" | \"$0\" " + command + " >/dev/full"),
                       "The output could not be written: No space left on device.");
        expectSentence(sh("echo \"$R\" | \"$0\" " + command + " >&-"),
                       "The output could not be written: Bad file descriptor.");
    }
    expectSentence(sh("mkfifo a; sleep 0 <a & (while :; do echo \"$R\"; done) | \"$0\" batch >a"),
                   "The output could not be written: Broken pipe.");
}

TEST_F(Shell, TellsThatInputCouldNotBeRead) {
    expectSentence(sh("\"$0\" batch <."), "The input could not be read: Is a directory.");
    expectSentence(sh("\"$0\" batch <&-"), "The input could not be read: Bad file descriptor.");
}

TEST_F(Shell, AnswersBeforeItWaits) {
    const Outcome outcome =
        sh("mkfifo in out; \"$0\" batch <in >out & exec 3>in 4<out;"
           "printf '%s\\n\\n' \"$R\" >&3; timeout 20 head -n 1 <&4;"
           "printf '%s\\n%s' \"$R\" '{\"op\":' >&3; timeout 20 head -n 1 <&4;"
           "exec 3>&-; timeout 20 cat <&4; wait $!");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, answer + answer + "{\"error\":\"The line is no valid JSON.\"}\n");
}

TEST_F(Shell, KeepsNoLineThatIsTooLong) {
    const std::string longest(std::size_t{1} << 20U, '[');
    const std::string tooLong = "{\"error\":\"The line is longer than 1 MiB.\"}\n";
    const Outcome most = sh("\"$0\" batch", longest + "\n" + longest + "[\n" + request);
    EXPECT_EQ(most.status, 0);
    EXPECT_EQ(most.out, "{\"error\":\"The line is no valid JSON.\"}\n" + tooLong + answer);
    const Outcome more = sh("head -c 50000000 /dev/zero | \"$0\" batch");
    EXPECT_EQ(more.out, tooLong);
    if (sanitized) GTEST_SKIP() << "The sanitizers need memory of their own.";
    EXPECT_LT(more.residentKilobytes, 12 * 1024);
    EXPECT_EQ(sh("ulimit -v 60000; \"$0\" batch", longest).out,
              "{\"error\":\"There is not enough memory to answer this request.\"}\n");
}

TEST_F(Shell, SavesWhatItSaysItSaves) {
    EXPECT_EQ(sh("\"$0\" solve Arithmetic 2+3 --save -x.hvx && \"$0\" load -x.hvx && ls -A").out.substr(0, 4), "2+3\n");
    expectSentence(sh("\"$0\" solve Arithmetic 2+3 --save ''"), "--save needs the name of a file.");
    EXPECT_EQ(sh("(ulimit -f 0; \"$0\" solve Arithmetic 2+3 --save a 2>&1; echo $?) | cat").out,
              "ordwise-cli: \"a\" could not be written: File too large.\n2\n");
    EXPECT_EQ(sh("\"$0\" solve Arithmetic 2+3 --save a >&-; cat a").out,
              "Arithmetic BB 2+3 BB  BB  BB  BB  BB  BB  BB -1 BB -1 BB 0 BB 91\r\n");
}

TEST_F(Shell, TakesAndNamesArgumentsAsTheyWereGiven) {
    EXPECT_EQ(sh("\"$0\" test --section Ratios:1 --heading -Quiz-").out.substr(0, 7), "-Quiz-\n");
    expectSentence(sh("\"$0\" solve -x"),
                   "There is no topic \"-x\". The nearest are \"Modes\", \"Ratios\", \"Ranges\".");
    expectSentence(sh("\"$0\" solve Arithmetic 1 2 -3"), "The following arguments were not expected: -3 2");
    expectSentence(sh("\"$0\" slove"), "There is no command \"slove\"; the nearest is \"solve\".");
    for (const std::string seed : {"-1", "0x10", "1e3", "18446744073709551616", "''"})
        EXPECT_EQ(sh("\"$0\" example Ratios --seed " + seed).err.find("ordwise-cli: --seed takes a whole number"), 0U);
    EXPECT_EQ(sh("\"$0\" example Ratios --seed 18446744073709551615").status, 0);
}

}  // namespace
}  // namespace ordwise::test
