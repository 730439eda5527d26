// SPDX-License-Identifier: GPL-3.0-or-later
// The generators: each turns some sources in data/ into one C++ file.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace odmiennik::tools {

using Paths = std::vector<std::string>;

// tenses.txt -> a header: the slots and the tenses that they belong to.
void generateTenses(const Paths& sources, std::ostream& out);

// tenses.txt -> a header: the pages that headings and boxes open.
void generateTenseHelp(const Paths& sources, std::ostream& out);

// tenses.txt, strings.txt, tips.txt, builtin_verbs.txt -> the numbered string table and the
// built-in verbs' keys.
void generateStrings(const Paths& sources, std::ostream& out);

// verb_index.tsv -> the general verb index.
void generateVerbIndex(const Paths& sources, std::ostream& out);

// tenses.txt, a dispatch and its models -> a header of constant tables; the first word of the names
// is given.
void generateRules(const std::string& group, const Paths& sources, std::ostream& out);

// norm/strings.txt, norm/lists.txt -> texts, lists of verbs and participles of the norm.
void generateNormTexts(const Paths& sources, std::ostream& out);

// norm/models.txt, norm/verbs.txt -> a header: what the norm writes over the forms, and for whom.
void generateNormModels(const Paths& sources, std::ostream& out);

// messages.txt -> a header: an enumeration of the messages and their table.
void generateMessages(const Paths& sources, std::ostream& out);

// hints.txt -> a header: an enumeration of the window's quiet texts and their table.
void generateHints(const Paths& sources, std::ostream& out);

// explanations/phrases.txt, explanations/models.txt -> a header: all that an explanation may say,
// and what the models are called there.
void generateExplanations(const Paths& sources, std::ostream& out);

// tenses.txt, window/main_window.txt -> a header: the table of the main window's controls.
void generateWindow(const Paths& sources, std::ostream& out);

}  // namespace odmiennik::tools
