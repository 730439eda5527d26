// SPDX-License-Identifier: GPL-3.0-or-later
// The program's help file: where it is, and its pages, with a page for each thing that can be
// wrong.
#pragma once

#include <QStringList>
#include <QUrl>
#include <optional>
#include <vector>

#include "app/help/help_contents.h"
#include "app/help/help_file.h"

namespace odmiennik::app {

// Addresses have a scheme of their own, so that nothing else is ever asked for one.
inline constexpr char kHelpScheme[] = "chm";

// The address of a page: "strony\PasséAntérieur.htm" -> "chm:/strony/PasséAntérieur.htm".
[[nodiscard]] QUrl helpAddress(const QString& page);

// Where the help file may be: beside the program, and in the folder that an installation shares.
[[nodiscard]] QStringList helpFilePlaces();

class HelpBook {
 public:
  // The first file found in `places` is the help file.
  explicit HelpBook(QStringList places = {}) : places_(std::move(places)) {}
  void lookIn(QStringList places) { places_ = std::move(places); }

  // Opens the help file unless it is open; true when it has been opened just now.
  bool open();

  // A page as text with mark-up; a page in Polish that says what is wrong when there is none.
  [[nodiscard]] QString page(const QUrl& address) const;

  // What belongs to a page, a style sheet; empty when there is none.
  [[nodiscard]] QByteArray part(const QUrl& address) const;

  // The table of contents, and the index with its keywords as titles; empty without a file.
  [[nodiscard]] std::vector<HelpContentsEntry> contents() const;
  [[nodiscard]] std::vector<HelpContentsEntry> index() const;

 private:
  enum class State : std::uint8_t { open, missing, damaged };
  [[nodiscard]] std::optional<QByteArray> content(const QUrl& address) const;
  [[nodiscard]] std::vector<HelpContentsEntry> entriesOf(const char* file) const;
  [[nodiscard]] QString faultPage(const QUrl& address) const;

  QStringList places_;
  State state_ = State::missing;
  std::optional<HelpFile> file_;
};

}  // namespace odmiennik::app
