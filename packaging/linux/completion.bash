# bash completion for Ambertask

_Ambertask()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} given=" ${COMP_WORDS[*]:1:COMP_CWORD-1} "
    COMPREPLY=()
    # Bash takes the "=" of "--format=csv" for a word.
    if [[ $word == "=" ]]; then
        word=
    elif [[ $before == "=" ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    case $before in
    --export | --import)
        compopt -o filenames 2> /dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$word"
            compgen -f -X '!*.[iI][cC][sS]' -- "$word"; compgen -f -X '!*.[cC][sS][vV]' -- "$word")
        return
        ;;
    --format)
        mapfile -t COMPREPLY < <(compgen -W "ics csv" -- "$word")
        return
        ;;
    esac
    local options
    case $given in
    *" --list "*) options="--json" ;;
    *" --export"[\ =]*) options="--format" ;;
    *" --import"[\ =]*) options="--format --yes --with-programs" ;;
    *" --help "* | *" --version "*) return ;;
    *) options="--export --import --list --help --version" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
}
complete -F _Ambertask Ambertask
