// SPDX-License-Identifier: GPL-3.0-or-later
// How the forms of a verb came to be: what the code that writes them has noted.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "engine/slots.h"
#include "engine/utf8.h"

namespace odmiennik::engine {

enum class PieceKind : std::uint8_t {
  whole,      // a form as it stands elsewhere: in a table, in a record, in another slot
  stem,       // what a model or a builder starts from
  text,       // what a model's row puts behind the stem
  ending,     // of a builder
  vowel,      // before the ending of the imperfect subjunctive
  separator,  // between two forms of one slot, and between auxiliary and participle
  auxiliary,
  participle,
  agreement,  // what the participle takes with être
  reflexive,  // "me ", "s'en "
  enclitic,   // "-toi"
};

// A piece of a form, Windows-1252.
struct Piece {
  PieceKind kind;
  std::string text;
};

// Whose work a form is.
enum class Maker : std::uint8_t {
  none,
  userRecord,
  builtinTable,
  infinitive,  // as it was typed
  model,       // a row of a model: its stem, then a text
  wholeText,   // a row that gives the form without a stem
  imperfect,   // the builders, by their tense
  future,
  imperative,
  presentSubjunctive,
  conditional,
  pastHistoric,
  presentParticiple,
  imperfectSubjunctive,
  compound,
  agreement,  // the participle's box beside être, as the norm writes it
};

// Why a slot that had a form has none.
enum class Lack : std::uint8_t { none, impersonal, thirdPersonOnly, reflexiveImperative };

inline constexpr int kNoSlot = -1;

// What a maker started from: the form that stood in `slot`, less `cut` letters, `added` behind it.
struct Origin {
  int slot = kNoSlot;
  std::size_t cut = 0;
  std::string form;
  std::string added;
};

// One writing of a slot. Its pieces in a row are what was written.
struct Making {
  Maker maker = Maker::none;
  Utf8View model;         // whose step it was, "" when no model's
  bool isOfNorm = false;  // today's norm over what was there
  bool isListed = false;  // the step is for the verbs of the model's list alone
  Origin origin;
  int auxiliaryForm = kNoSlot;  // of a compound form: which of the auxiliary's 44
  std::vector<Piece> pieces;
};

// The row of a dispatch, or of the norm, that has claimed the verb.
struct ClaimedBy {
  std::string ending;  // Windows-1252; "" when no row did
  Utf8View model;
  bool isWholeVerb = false;  // the row is for this verb alone
};

struct SlotTrace {
  std::vector<Making> makings;  // in their order: the last one stands
  Lack lack = Lack::none;
  // What of the form its box shows: without the pronoun of a record, where there is none to show.
  std::size_t shownFirst = 0, shownLength = 0;
};

class Trace {
 public:
  [[nodiscard]] const SlotTrace& operator[](int slot) const {
    return slots_[static_cast<std::size_t>(slot)];
  }
  [[nodiscard]] const ClaimedBy& rule() const { return rule_; }
  [[nodiscard]] const ClaimedBy& norm() const { return norm_; }

  // For engine/noting.h, by which the builders write.
  void clear();
  void claim(const ClaimedBy& by, bool isOfNorm) { (isOfNorm ? norm_ : rule_) = by; }
  void beginStep(Utf8View model, bool isOfNorm, bool isListed);
  void startFrom(Origin origin) { next_.origin = std::move(origin); }
  void makeAs(Maker maker) { next_.maker = maker; }
  void useAuxiliary(int form) { next_.auxiliaryForm = form; }
  void begin(int slot);
  void add(int slot, PieceKind kind, std::string_view text);
  void insert(int slot, std::size_t at, PieceKind kind, std::string_view text);
  void shorten(int slot, std::size_t count);
  void lose(int slot, Lack lack) { at(slot).lack = lack; }
  void show(int slot, std::size_t first, std::size_t length);

 private:
  SlotTrace& at(int slot) { return slots_[static_cast<std::size_t>(slot)]; }

  std::array<SlotTrace, kSlotCount> slots_;
  ClaimedBy rule_, norm_;
  Making next_;  // what is known already of the next writing
};

// The pieces in a row: {"mang", "eons"} -> "mangeons".
[[nodiscard]] std::string textOf(const std::vector<Piece>& pieces);

}  // namespace odmiennik::engine
