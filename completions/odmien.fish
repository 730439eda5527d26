# SPDX-License-Identifier: GPL-3.0-or-later
# Completes odmien in fish. What there is to complete is asked of the command itself.

# Several values stand behind each other with commas between them.
function __odmien_values
    set -l before (commandline -ct | string replace -r -- '^--[a-z]+=' '' | string match -r '.*,')
    for value in $argv
        echo "$before$value"
    end
end

function __odmien_tenses
    __odmien_values (odmien --slots | sed '1d; s/.*\t//; s/ /-/g' | uniq)
end

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
            complete -c odmien -l $option[2] -d $option[4] -x -a "(__odmien_values $(string replace -a '|' ' ' -- $values))"
        else if test "$values" = CZASY
            complete -c odmien -l $option[2] -d $option[4] -x -a '(__odmien_tenses)'
        else
            complete -c odmien -l $option[2] -d $option[4] -x -a '(odmien --list (commandline -ct) 2>/dev/null)'
        end
    end
end

complete -c odmien -f -a '(odmien --list (commandline -ct | string replace -r "^--.*=" "") 2>/dev/null)'
__odmien_complete_options
