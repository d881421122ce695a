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
    local i
    for ((i = 0; i < $1; ++i)); do
        little_endian $(($4 | $3 << 8 | $2 << 16)) 3
    done
}
