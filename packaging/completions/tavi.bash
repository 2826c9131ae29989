# Completion of tavi for bash.
_tavi() {
    local cur prev words cword command='' i
    _init_completion || return
    for ((i = 1; i < cword; i++)); do
        case ${words[i]} in
        --container) ((i++)) ;;
        -*) ;;
        *) command=${words[i]} && break ;;
        esac
    done
    case $prev in
    --container) _filedir -d && return ;;
    --out | --png) _filedir && return ;;
    --from | --to | --points | --user) return ;;
    esac
    local keys='AudioFileType AudioQualityType QuickMail Iclound Sort RewindSong ForwardSong'
    case $command in
    '')
        COMPREPLY=($(compgen -W 'record stop library get set list recover import waveform trim rename delete export cloud
            --container --companion-channel --help --version' -- "$cur"))
        [[ $cur == -* ]] || _filedir
        ;;
    get) COMPREPLY=($(compgen -W "$keys" -- "$cur")) ;;
    set)
        case $prev in
        AudioFileType) COMPREPLY=($(compgen -W 'm4a wav aac mp4 caf' -- "$cur")) ;;
        QuickMail | Iclound) COMPREPLY=($(compgen -W 'true false' -- "$cur")) ;;
        set) COMPREPLY=($(compgen -W "$keys" -- "$cur")) ;;
        esac
        ;;
    list) COMPREPLY=($(compgen -W '--json' -- "$cur")) ;;
    rename | delete | export)
        if [[ $cur == -* ]]; then
            [[ $command != delete ]] || COMPREPLY=($(compgen -W '--permanently' -- "$cur"))
        elif [[ $command == export && $prev != export ]]; then
            _filedir
        else
            local IFS=$'\n'
            COMPREPLY=($(compgen -W "$(tavi list </dev/null 2>/dev/null | cut -f 1)" -- "$cur"))
            compopt -o filenames
        fi
        ;;
    cloud)
        if [[ $prev == cloud ]]; then
            COMPREPLY=($(compgen -W 'connect disconnect sync status list' -- "$cur"))
        elif [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W '--user --in-clear --json --remove-vanished --keep-vanished' -- "$cur"))
        else
            _filedir -d
        fi
        ;;
    waveform) [[ $cur != -* ]] && _filedir || COMPREPLY=($(compgen -W '--points --json --png' -- "$cur")) ;;
    trim) [[ $cur != -* ]] && _filedir || COMPREPLY=($(compgen -W '--from --to --out' -- "$cur")) ;;
    import) _filedir ;;
    esac
} && complete -F _tavi tavi
