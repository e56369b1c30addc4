// What is told of a command's options.
#include "app/Pages.h"
#include "console/options/OptionText.h"

#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/HelpText.h"
#include "console/options/OptionTable.h"

namespace plot3d::program {
namespace {

class Sorting : public Command {
public:
    const char* name() const override { return "sort"; }
    const char* purpose() const override { return "Sort what there is"; }
    const char* examples() const override { return "  plot3d sort a.x\n      sorted\n"; }
    const char* failureMeans() const override { return "nothing to sort"; }
    void declare(console::OptionTable& table) override {
        table.files(files, "What is sorted");
        table.output(output, overwrites, "Where it goes").required();
        table.number("--count", count, "COUNT", "How many,\nat most");
        table.text("--by", by, "name|size", "By what");
        table.flag("--internal", overwrites, "Not for users").hidden();
    }
    void takeApart(std::vector<std::string>& arguments) override {
        if (!arguments.empty() && arguments.back() == "--")
            arguments.pop_back();
    }
    int run(const Surroundings_s& surroundings) override {
        for (const std::string& file : files)
            surroundings.out << file << '\n';
        return ExitCode_Done;
    }

    std::vector<std::string> files;
    std::string output;
    std::string by;
    int count = 0;
    bool overwrites = false;
};

class PagesTest : public testing::Test {
protected:
    std::string told(const std::vector<std::string>& arguments) {
        std::ostringstream out;
        DeclaredCommand(sorting).run(arguments,
                                     {in, out, err, 0, 0, false, ProgressWish_e::Auto, false, {}});
        return out.str();
    }

    Sorting sorting;
    std::istringstream in;
    std::ostringstream err;
};

TEST_F(PagesTest, UsageNamesWhatMustBeGiven) {
    EXPECT_EQ(usageOf(DeclaredCommand(sorting).page()), "[OPTION]... -o FILE FILE...");
}

class Comparing : public Sorting {
public:
    void declare(console::OptionTable& table) override {
        table.files(files, "What is compared", "FILE -- FILE");
    }
};

TEST_F(PagesTest, UsageNamesListsOfFilesAsTheCommandDoes) {
    Comparing comparing;
    EXPECT_EQ(usageOf(DeclaredCommand(comparing).page()), "[OPTION]... FILE -- FILE");
}

TEST_F(PagesTest, OptionsAreForUsers) {
    const CommandPage_s page = DeclaredCommand(sorting).page();
    ASSERT_GE(page.options.size(), 4U);
    EXPECT_EQ(console::headOf(page.options[0]), "-o, --output FILE");
    EXPECT_EQ(console::headOf(page.options[2]), "--count COUNT");
    EXPECT_EQ(page.options[2].text, "How many, at most");
    EXPECT_EQ(page.options[3].choices, (std::vector<std::string>{"name", "size"}));
    for (const console::OptionRow_s& row : page.options)
        EXPECT_NE(row.names.front(), "--internal");
}

TEST_F(PagesTest, ExitCodesSayWhatFailureMeans) {
    EXPECT_NE(helpText(DeclaredCommand(sorting).page(), 0)
                  .find("  1                     nothing to "
                        "sort\n"),
              std::string::npos);
}

TEST_F(PagesTest, FilesStandAsTheyAreGiven) {
    EXPECT_EQ(told({"-o", "out", "[a].x", "{b,c}.x", "-"}), "[a].x\n{b,c}.x\n-\n");
}

TEST_F(PagesTest, TheCommandSeesItsArgumentsFirst) {
    EXPECT_EQ(told({"-o", "out", "a.x", "--"}), "a.x\n");
    EXPECT_EQ(told({"-o", "out", "--", "-a.x"}), "-a.x\n");
}

} // namespace
} // namespace plot3d::program
