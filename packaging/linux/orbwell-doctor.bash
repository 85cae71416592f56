# Completion of orbwell-doctor for bash.
# shellcheck shell=bash

_orbwell_doctor() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    # bash takes "=" for a word of its own. A word after "--plan" without it is a simulator's name.
    if [[ $word == "=" ]]; then
        before="$before=" word=
    elif [[ $before == "=" ]]; then
        before="${COMP_WORDS[COMP_CWORD - 2]}="
    fi
    case $before in
    --catalogue | --catalogue=) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    --plan=) mapfile -t COMPREPLY < <(compgen -W "install repair uninstall" -- "$word") ;;
    *)
        local options="--json --plan --plan= --catalogue --check-catalogue --help --version"
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
        ;;
    esac
}
complete -o filenames -F _orbwell_doctor orbwell-doctor
