# SPDX-License-Identifier: LGPL-2.1-or-later
# Completion of the arguments of kirv for bash.
_kirv()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} profile index command=
    COMPREPLY=()
    for ((index = 1; index < COMP_CWORD; ++index)); do
        [ "${COMP_WORDS[index]}" = accounts ] || continue
        command=accounts
        ((index + 1 < COMP_CWORD)) && command=${COMP_WORDS[index + 1]}
        break
    done
    case $before in
    --pass-phrase-file)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
        ;;
    --pass-phrase-fd)
        return
        ;;
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
    case $command/$word in
    /*)
        mapfile -t COMPREPLY < <(compgen -W 'accounts --profile --plugins --check --restore --recover
            --help --help-all --version' -- "$word")
        ;;
    accounts/[!-]* | accounts/)
        mapfile -t COMPREPLY < <(compgen -W 'list enable disable export import' -- "$word")
        ;;
    */-*)
        mapfile -t COMPREPLY < <(compgen -W '--profile --plugins --json --with-passwords --force --without-passwords
            --replace --dry-run --pass-phrase-file --pass-phrase-fd --help --help-all' -- "$word")
        ;;
    export/* | import/*)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ;;
    esac
} && complete -F _kirv kirv
