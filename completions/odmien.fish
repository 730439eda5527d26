# SPDX-License-Identifier: GPL-3.0-or-later
# Completes odmien in fish. What there is to complete is asked of the command itself.

function __odmien_complete_options
    for row in (odmien --help | string match -r '^  --.*')
        set -l option (string match -r -- '--([a-z]+) ?(\S*) *(.*)' $row)
        if test (count $option) -lt 2
            continue
        end
        set -l values $option[3]
        if test -z "$values"
            complete -c odmien -l $option[2] -d $option[4]
        else if test "$values" = KATALOG
            complete -c odmien -l $option[2] -d $option[4] -x -a '(__fish_complete_directories)'
        else if string match -qr '[a-z]' -- $values
            complete -c odmien -l $option[2] -d $option[4] -x -a "$(string replace -a '|' ' ' -- $values)"
        else
            complete -c odmien -l $option[2] -d $option[4] -x -a '(odmien --list (commandline -ct) 2>/dev/null)'
        end
    end
end

complete -c odmien -f -a '(odmien --list (commandline -ct | string replace -r "^--.*=" "") 2>/dev/null)'
__odmien_complete_options
