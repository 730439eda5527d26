# SPDX-License-Identifier: GPL-3.0-or-later
# Completes odmien in bash. What there is to complete is asked of the command itself.

_odmien() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} values
  # bash takes "--format=json" for three words.
  [[ $current == = ]] && current=
  [[ $previous == = ]] && previous=${COMP_WORDS[COMP_CWORD - 2]}
  [[ $previous == -* ]] &&
    values=$(odmien --help | sed -n "s/^  $previous \([^ ]*\).*/\1/p")
  case $values in
    CZASY) values=$(odmien --slots | sed '1d; s/.*\t//; s/ /-/g' | uniq) ;;&
    KATALOG) mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
    CZASY | *[a-z]*)
      # Several values stand behind each other with commas between them.
      local last=${current##*,}
      mapfile -t COMPREPLY < <(compgen -P "${current%"$last"}" -W "${values//|/ }" -- "$last")
      ;;
    *)
      if [[ -z $values && $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(odmien --help | sed -n 's/^  \(--[a-z]*\).*/\1/p')" \
          -- "$current")
      else
        mapfile -t COMPREPLY < <(odmien --list "$current" 2>/dev/null)
        ((${#COMPREPLY[@]})) && mapfile -t COMPREPLY < <(printf '%q\n' "${COMPREPLY[@]}")
      fi
      ;;
  esac
}
complete -F _odmien odmien
