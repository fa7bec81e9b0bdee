# SPDX-License-Identifier: LGPL-2.1-or-later
# Completion of the arguments of kirv for bash.
_kirv()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} profile index
    COMPREPLY=()
    case $before in
    --profile | --plugins)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        return
        ;;
    --restore)
        profile=${XDG_DATA_HOME:-$HOME/.local/share}/kirv
        for ((index = 1; index < COMP_CWORD - 1; ++index)); do
            [ "${COMP_WORDS[index]}" = --profile ] && profile=${COMP_WORDS[index + 1]}
        done
        # The program takes a copy by its name, too.
        mapfile -t COMPREPLY < <(cd -- "$profile/copies" 2>/dev/null && compgen -f -- "$word")
        return
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W '--profile --plugins --check --restore --recover
        --help --help-all --version' -- "$word")
} && complete -F _kirv kirv
