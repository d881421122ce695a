# The bytes of palette files, written down independently of the program. To be sourced.

little_endian() { # VALUE BYTES
    local value=$1 i
    for ((i = 0; i < $2; ++i)); do
        printf "\\x$(printf %02x $((value & 255)))"
        value=$((value >> 8))
    done
}

headers() { # WIDTH HEIGHT
    printf 'BM'
    little_endian 0 4  # file size, not filled in
    little_endian 0 4  # reserved
    little_endian 54 4 # where the pixels start
    little_endian 40 4
    little_endian "$1" 4
    little_endian "$2" 4
    little_endian 1 2    # planes
    little_endian 24 2   # bits per pixel
    little_endian 0 8    # no compression, image size not filled in
    little_endian 2834 4 # pixels per metre
    little_endian 2834 4
    little_endian 0 8
}

pixels_of() { # COUNT RED GREEN BLUE
    local pixel
    printf -v pixel '\\x%02x' "$4" "$3" "$2"
    printf "$pixel%.0s" $(seq "$1")
}

# clamp VALUE: 0 to 255
clamp() { echo $(($1 < 0 ? 0 : $1 > 255 ? 255 : $1)); }

# The image of an HVC scale of black cells, but for COUNT cells from FIRST in one colour.
hvc_rows() { # FIRST COUNT RED GREEN BLUE
    local row level black
    for ((row = 255; row >= 0; --row)); do # stored bottom first
        level=$((127 - row))
        black=$(clamp $level)
        pixels_of "$1" "$black" "$black" "$black"
        pixels_of "$2" "$(clamp $(($3 + level)))" "$(clamp $(($4 + level)))" "$(clamp $(($5 + level)))"
        pixels_of $((100 - $1 - $2)) "$black" "$black" "$black"
    done
}
