# bash completion for barhatch
_barhatch() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  case $previous in
    -t | --type)
      COMPREPLY=($(compgen -W "codabar code39 code93 ean13 msi code128 code128a code128b code128c upca upce code11 ean8
        upca+2 upca+5 ean13+2 ean13+5 ean8+2 ean8+5 upce+2 upce+5 itf code93full datamatrix itf14 code39full" -- "$word"))
      return
      ;;
    -p | --pattern) COMPREPLY=($(compgen -W "0 1 2 3 5 6" -- "$word")); return ;;
    --check)
      COMPREPLY=($(compgen -W "own none verify mod43 mod16 itf msi10 msi10+10 msi11 msi11+10 ncr11 ncr11+10 c ck" -- "$word"))
      return
      ;;
    --shape) COMPREPLY=($(compgen -W "square rectangle any dmre dmre-rectangle" -- "$word")); return ;;
    --envelope) COMPREPLY=($(compgen -W "5 6 12 dd" -- "$word")); return ;;
    --format) COMPREPLY=($(compgen -W "0 1 2 3" -- "$word")); return ;;
    --laser) COMPREPLY=($(compgen -W "M3 M4" -- "$word")); return ;;
    --table) COMPREPLY=($(compgen -W "types" -- "$word")); return ;;
    --size)
      COMPREPLY=($(compgen -W "10x10 12x12 14x14 16x16 18x18 20x20 22x22 24x24 26x26 32x32 36x36 40x40 44x44 48x48 52x52 64x64
        72x72 80x80 88x88 96x96 104x104 120x120 132x132 144x144 8x18 8x32 12x26 12x36 16x36 16x48 8x48 8x64 8x80 8x96 8x120 8x144
        12x64 12x88 16x64 20x36 20x44 20x64 22x48 24x48 24x64 26x40 26x48 26x64" -- "$word"))
      return
      ;;
    -o | --output | --batch) COMPREPLY=($(compgen -f -- "$word")); return ;;
  esac
  if [[ $word == -* ]]; then
    COMPREPLY=($(compgen -W "-t --type -d --device -W --width -H --height -r --ratio -q --quiet-zone --permit --no-proof --gs1 --escapes --bytes
      --codewords --check --start-stop --bearer-bars --addon-gap --size --expand --shape --mask --envelope --eci --fnc1-second
      --gs-separators --part --part-id --reader-programming --loose-end --industry-144 --format -p --pattern
      -g --gap -i --invert --mark-speed --feed --jump-speed --travel-speed --dwell --power --laser -o --output --animate
      --dark-part --beam --margin --pixels-per-unit --batch --same-size --sheet --columns --explain --verify --list --table -Q --quiet
      -h --help --version" -- "$word"))
  fi
}
complete -F _barhatch barhatch
