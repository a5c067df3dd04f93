# SPDX-License-Identifier: BSD-3-Clause
# shellcheck shell=bash
# Completion of bash for sorrel-form.
_sorrel_form() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command='' word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ $word != check && $word != render && $word != normalize ]] || command=$word
    done
    compopt -o filenames 2>/dev/null
    if [[ $previous == --plugin-path ]]; then
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
    elif [[ $previous == --jobs ]]; then
        COMPREPLY=()
    elif [[ $current == -* ]]; then
        case $command in
            check) word='--json --jobs --plugin-path' ;;
            render | normalize) word='--plugin-path' ;;
            *) word='--help --version' ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$word" -- "$current")
    elif [[ ! $command ]]; then
        mapfile -t COMPREPLY < <(compgen -W 'check render normalize' -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -d -- "$current"; compgen -f -X '!*.ui' -- "$current")
    fi
}
complete -F _sorrel_form sorrel-form
