# Completion of tessarine-batch: its own help names commands and options.
_tessarine_batch() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
    local words=("$command")
    [ "$command" != tags ] || [ "$COMP_CWORD" -le 2 ] || words+=("${COMP_WORDS[2]}")
    COMPREPLY=()
    if [ "$COMP_CWORD" = 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "--help --version $(tessarine-batch --help | sed -n 's/^  \([a-z]*\)  .*/\1/p')" -- "$word")
    elif [ "$COMP_CWORD" = 2 ] && [ "$command" = tags ]; then
        mapfile -t COMPREPLY < <(compgen -W 'list count add remove replace split' -- "$word")
    elif [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(tessarine-batch "${words[@]}" --help | sed -n 's/^  \(--[a-z-]*\).*/\1/p')" -- "$word")
    else
        case $before in
            --aspect) mapfile -t COMPREPLY < <(compgen -W 'keep expand ignore' -- "$word") ;;
            --transformation) mapfile -t COMPREPLY < <(compgen -W 'smooth fast' -- "$word") ;;
            --format) mapfile -t COMPREPLY < <(compgen -W 'text json csv jsonl' -- "$word") ;;
            --filter)
                compopt -o nospace
                mapfile -t COMPREPLY < <(compgen -W 'Brightness= Contrast= Blur= WhitePoint= BlackPoint= Sharpen' -- "$word")
                ;;
        esac
    fi
}
complete -o bashdefault -o default -F _tessarine_batch tessarine-batch
