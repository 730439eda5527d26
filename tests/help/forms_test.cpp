// SPDX-License-Identifier: GPL-3.0-or-later
// Every French form that a page marks is the one that the program shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "tests/help/form_check.h"
#include "tests/help/help_page.h"
#include "tests/support/test_program.h"

namespace odmiennik::help {
namespace {

// Conjugates a verb once for all its forms in a row.
class Engine {
 public:
  std::string form(const MarkedForm& marked) {
    if (marked.verb != verb_) {
      program_ = std::make_unique<testing::TestProgram>();
      program_->conjugate(marked.verb);
      verb_ = marked.verb;
    }
    return program_->slot(marked.slot);
  }

 private:
  std::string verb_;
  std::unique_ptr<testing::TestProgram> program_;
};

bool isAccepted(const std::string& written, const std::string& given) {
  const std::vector<std::string> writings = acceptedWritings(given);
  const std::string form = insideSentence(plainForm(written));
  return std::find(writings.begin(), writings.end(), form) != writings.end();
}

std::string described(const HelpPage& page, const MarkedForm& marked, const std::string& given) {
  return page.name + ": " + marked.verb + " " + std::to_string(marked.slot) + " is written \"" +
         marked.form + "\", the program gives \"" + given + "\"";
}

TEST(help_forms, every_marked_form_is_what_the_program_gives) {
  Engine engine;
  for (const HelpPage& page : allPages())
    for (const MarkedForm& marked : page.forms()) {
      ASSERT_LE(marked.slot, 100) << page.name << ": " << marked.verb;
      const std::string given = engine.form(marked);
      EXPECT_TRUE(isAccepted(marked.form, given)) << described(page, marked, given);
    }
}

TEST(help_forms, no_marked_form_is_empty) {
  for (const HelpPage& page : allPages())
    for (const MarkedForm& marked : page.forms())
      EXPECT_FALSE(plainForm(marked.form).empty()) << page.name << ": " << marked.verb;
}

TEST(help_forms, every_mark_has_the_shape_that_this_test_reads) {
  for (const HelpPage& page : allPages()) {
    std::size_t marks = 0;
    for (auto at = page.markup.find("class=\"f\""); at != std::string::npos;
         at = page.markup.find("class=\"f\"", at + 1))
      ++marks;
    EXPECT_EQ(page.forms().size(), marks) << page.name;
  }
}

TEST(help_forms, a_tense_page_has_at_least_25_checked_forms) {
  for (const std::string& name : tensePageNames()) {
    const HelpPage* page = findPage(name);
    ASSERT_NE(page, nullptr) << name;
    EXPECT_GE(page->forms().size(), 25U) << name;
  }
}

TEST(accepted_writings, agreement_may_be_written_out_or_left_open) {
  EXPECT_EQ(acceptedWritings("sont allé(e)s"),
            (std::vector<std::string>{"sont allé(e)s", "sont allés", "sont allées"}));
}

TEST(accepted_writings, each_variant_of_a_double_form_is_accepted) {
  EXPECT_EQ(acceptedWritings("paye/paie"), (std::vector<std::string>{"paye/paie", "paye", "paie"}));
}

TEST(accepted_writings, of_a_participle_with_its_feminine_ending_the_first_is_accepted) {
  EXPECT_EQ(acceptedWritings("dû, due"), (std::vector<std::string>{"dû, due", "dû"}));
}

TEST(accepted_writings, a_form_may_begin_a_sentence) {
  EXPECT_TRUE(isAccepted("Lève-toi", "lève-toi"));
  EXPECT_FALSE(isAccepted("LÈVE-TOI", "lève-toi"));
}

TEST(accepted_writings, another_form_is_not_accepted) {
  EXPECT_FALSE(isAccepted("ont parlé", "aurainet parlé"));
  EXPECT_FALSE(isAccepted("allé", "est allé(e)"));
}

}  // namespace
}  // namespace odmiennik::help
