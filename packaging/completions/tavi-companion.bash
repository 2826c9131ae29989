# Completion of tavi-companion for bash.
_tavi_companion() {
    local cur prev words cword
    _init_completion || return
    case $prev in
    --container) _filedir -d ;;
    record | stop | show | say | listen) ;;
    *) COMPREPLY=($(compgen -W 'record stop show say listen --container --channel --help --version' -- "$cur")) ;;
    esac
} && complete -F _tavi_companion tavi-companion
