# Completes ordwise-cli: its commands, their options, and the names of the topics.

_ordwise_cli_options() {
    ordwise-cli "$@" --help 2>/dev/null | grep -oE -- '--[a-z]+(-[a-z]+)*'
}

# Names of topics hold blanks, so each candidate is quoted as the shell will read it again.
_ordwise_cli_topics() {
    local word=$1 name
    ordwise-cli topics 2>/dev/null | sed -E 's/^ *[0-9]+ +//' | while IFS= read -r name; do
        [[ $name == "$word"* ]] && printf '%q\n' "$name"
    done
}

_ordwise_cli() {
    local word=${COMP_WORDS[COMP_CWORD]} command=${COMP_WORDS[1]}
    local IFS=$'\n'
    if [[ $word == -* ]]; then
        # Of the command, once there is one.
        [ "$COMP_CWORD" -eq 1 ] && command=
        mapfile -t COMPREPLY < <(compgen -W "$(_ordwise_cli_options ${command:+"$command"})" -- "$word")
    elif [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W $'topics\nkeys\nsolve\ncheck\nload\nexample\ntest\nbatch' -- "$word")
    elif [[ $command == load || ${COMP_WORDS[COMP_CWORD - 1]} == --save ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    elif [ "$COMP_CWORD" -eq 2 ]; then
        case $command in
            # As typed so far, without the backslashes and quotes of the shell.
            keys | solve | check | example) mapfile -t COMPREPLY < <(_ordwise_cli_topics "$(printf '%s' "$word" | tr -d "\\\\\"'")") ;;
        esac
    fi
}

complete -o filenames -F _ordwise_cli ordwise-cli
