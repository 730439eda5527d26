// SPDX-License-Identifier: GPL-3.0-or-later
// Notes of how forms came to be.
#include "engine/trace.h"

#include <utility>

namespace odmiennik::engine {
namespace {

// The piece before which a piece at that letter goes; one that is cut by it falls in two.
std::size_t positionAt(std::vector<Piece>& pieces, std::size_t letter) {
  std::size_t position = 0;
  for (; position < pieces.size() && letter > 0; ++position) {
    std::string& text = pieces[position].text;
    if (letter < text.size()) {
      pieces.insert(pieces.begin() + static_cast<std::ptrdiff_t>(position) + 1,
                    {pieces[position].kind, text.substr(letter)});
      pieces[position].text.resize(letter);
      return position + 1;
    }
    letter -= text.size();
  }
  return position;
}

}  // namespace

void Trace::clear() { *this = Trace(); }

void Trace::beginStep(Utf8View model, bool isOfNorm, bool isListed) {
  next_ = {.model = model, .isOfNorm = isOfNorm, .isListed = isListed};
}

void Trace::begin(int slot) {
  at(slot).makings.push_back(next_);
  at(slot).lack = Lack::none;
}

void Trace::add(int slot, PieceKind kind, std::string_view text) {
  if (!text.empty()) at(slot).makings.back().pieces.push_back({kind, std::string(text)});
}

void Trace::insert(int slot, std::size_t at, PieceKind kind, std::string_view text) {
  std::vector<Piece>& pieces = this->at(slot).makings.back().pieces;
  const auto position = static_cast<std::ptrdiff_t>(positionAt(pieces, at));
  pieces.insert(pieces.begin() + position, {kind, std::string(text)});
}

void Trace::shorten(int slot, std::size_t count) {
  std::vector<Piece>& pieces = at(slot).makings.back().pieces;
  for (; count > 0 && !pieces.empty(); pieces.pop_back()) {
    std::string& last = pieces.back().text;
    if (last.size() > count) return last.resize(last.size() - count);
    count -= last.size();
  }
}

void Trace::show(int slot, std::size_t first, std::size_t length) {
  at(slot).shownFirst = first;
  at(slot).shownLength = length;
}

std::string textOf(const std::vector<Piece>& pieces) {
  std::string text;
  for (const Piece& piece : pieces) text.append(piece.text);
  return text;
}

}  // namespace odmiennik::engine
