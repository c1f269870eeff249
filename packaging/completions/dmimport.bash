# SPDX-FileCopyrightText: 2026 The ImportModule authors
# SPDX-License-Identifier: MIT
#
# Completion of dmimport for bash. A test compares its options with those of the program.

_dmimport() {
    local -A options=(
        [formats]=""
        [inspect]="--columns --delimiter --header --no-header --encoding --date-order --decimal --format
            --profile --save-profile"
        [preview]="--store --columns --unassigned --delimiter --header --no-header --encoding
            --date-order --decimal --format --profile --save-profile --verbatim --limit"
        [import]="--store --columns --delimiter --header --no-header --encoding --date-order --decimal
            --format --profile --save-profile --verbatim --info --allow-undated --again --new-only
            --keep-partial --report"
        [accounts]="--store --verbatim"
        [bookings]="--store --verbatim --again --new-only --keep-partial --report"
        [show]="--store --limit"
        [undo]="--store"
        [export]="--store --to --session --since --until --account"
        [profiles]=""
    )
    local -A values=(
        [--encoding]="latin1 cp1252 utf-8 utf-16"
        [--date-order]="dmy mdy ymd"
        [--decimal]=", ."
        [--format]="star-money csv qif tax zasterhof"
        [--to]="csv json hledger qif"
        [--delimiter]="tab"
        [--color]="auto always never"
        [show]="data-sets sessions accounts bookings counters"
    )
    local for_all="--json --quiet --color --help"
    local files=" --store --report " # take a file
    local others=" --columns --info --limit --profile --save-profile --session --since --until --account "

    # bash makes a word of its own of each "=".
    local words=() word
    for word in "${COMP_WORDS[@]:1:COMP_CWORD}"; do
        [[ $word == "=" ]] || words+=("$word")
    done
    [[ ${COMP_WORDS[COMP_CWORD]} != "=" ]] || words+=("")
    local count=${#words[@]}
    local current=${words[count - 1]} previous=""
    ((count < 2)) || previous=${words[count - 2]}

    local command="" only_files=""
    for word in "${words[@]:0:count - 1}"; do
        [[ -n $command || -z $word || -z ${options[$word]+known} ]] || command=$word
        [[ $word != -- ]] || only_files=yes
    done

    # What fits is compared here: compgen would expand names of profiles as the shell does.
    COMPREPLY=()
    local candidates=() for_files=""
    if [[ -n $only_files || $files == *" $previous "* ]]; then
        for_files=yes
    elif [[ $previous == -* && -n ${values[$previous]:-} ]]; then
        read -rd '' -a candidates <<<"${values[$previous]}"
    elif [[ $previous == --profile ]]; then
        for word in "${XDG_CONFIG_HOME:-$HOME/.config}"/dmimport/profiles/*.profil; do
            word=${word##*/}
            [[ $word == "*.profil" ]] || candidates+=("${word%.profil}")
        done
    elif [[ $others == *" $previous "* ]]; then
        return
    elif [[ $current == -* ]]; then
        read -rd '' -a candidates <<<"$for_all ${options[${command:-formats}]}"
        [[ -n $command ]] || candidates+=(--version)
    elif [[ -z $command ]]; then
        candidates=("${!options[@]}")
    elif [[ -n ${values[$command]:-} ]]; then
        read -rd '' -a candidates <<<"${values[$command]}"
    elif [[ $command == @(inspect|preview|import|accounts|bookings) ]]; then
        for_files=yes
    fi

    if [[ -n $for_files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
        return
    fi
    for word in "${candidates[@]}"; do
        [[ $word != "$current"* ]] || COMPREPLY+=("$word")
    done
}

complete -F _dmimport dmimport
