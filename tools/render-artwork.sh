#!/usr/bin/env bash
# Renders the SVG sources in resources/artwork/ into resources/images/ and rewrites
# resources/images.qrc. The rendered files are kept in the repository, so the normal build
# needs none of this; run it after changing a drawing.
#   tools/render-artwork.sh                     render everything
#   tools/render-artwork.sh --sheet FILE.png    also draw every image at 1x and 2x on a light
#                                               and on a dark background into FILE.png
# Needs python3, rsvg-convert (Debian: librsvg2-bin) and ImageMagick's convert and montage.
set -euo pipefail
cd "$(dirname "$0")/../resources"

sheet=""
while [ $# -gt 0 ]; do
    case "$1" in
        --sheet) sheet="$2"; shift 2 ;;
        *) echo "unknown argument: $1" >&2; exit 2 ;;
    esac
done

for tool in python3 rsvg-convert convert montage; do
    if ! command -v "$tool" >/dev/null; then
        echo "render-artwork: $tool is missing (apt-get install librsvg2-bin imagemagick python3)" >&2
        exit 1
    fi
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

python3 artwork/compose.py

rm -rf images
mkdir -p images/lang

# Plain images: one SVG each, drawn at its logical size, rendered at 1x and 2x.
while IFS= read -r svg; do
    name=${svg#artwork/}
    name=${name%.svg}
    rsvg-convert --format png -o "images/$name.png" "$svg"
    rsvg-convert --format png --zoom 2 -o "images/$name@2x.png" "$svg"
done < <(find artwork -name '*.svg' ! -path 'artwork/indicator/*' ! -name 'cirro-manager.svg' | sort)

# Window icon: the pixel-fitted mark at 16, the detailed drawing from 32 up.
rsvg-convert --format png -w 16 -h 16 -o "$scratch/icon-16.png" artwork/Cirro.svg
for size in 32 48 256; do
    rsvg-convert --format png -w "$size" -h "$size" -o "$scratch/icon-$size.png" artwork/cirro-manager.svg
done
convert "$scratch"/icon-16.png "$scratch"/icon-32.png "$scratch"/icon-48.png "$scratch"/icon-256.png \
    -strip images/cirro-manager.ico

# Busy indicator: the frames of artwork/indicator/, 12 per turn, looping. GIF knows only fully
# transparent or opaque pixels: the smoothed edges are laid over the window colour of Qt's
# light palette (#efefef) and what is covered less than a fifth becomes transparent.
frames=()
for svg in artwork/indicator/frame-*.svg; do
    png="$scratch/$(basename "${svg%.svg}").png"
    rsvg-convert --format png -o "${png%.png}-source.png" "$svg"
    convert "${png%.png}-source.png" -write mpr:frame +delete \
        \( mpr:frame -background '#efefef' -flatten \) \
        \( mpr:frame -alpha extract -threshold 20% \) \
        -alpha off -compose CopyOpacity -composite "$png"
    frames+=("$png")
done
convert -dispose Background -delay 8 -loop 0 "${frames[@]}" images/indicator.gif

# Resource file: every rendered file under its resource name below ":/images".
{
    echo '<!DOCTYPE RCC>'
    echo '<!-- Written by tools/render-artwork.sh. -->'
    echo '<RCC version="1.0">'
    echo '    <qresource prefix="/images">'
    while IFS= read -r file; do
        alias=${file#images/}
        [ "$alias" = "cirro-manager.ico" ] && alias="Cirro Manager.ico"
        echo "        <file alias=\"$alias\">$file</file>"
    done < <(find images -type f | LC_ALL=C sort)
    echo '    </qresource>'
    echo '</RCC>'
} > images.qrc

if [ -n "$sheet" ]; then
    # One block per background: small icons, flags and logo at 1x, then at 2x; the busy
    # indicator's frames and the window icon's sizes; the camera pictures at 1x, then at 2x.
    small=(); small2=(); cams=(); cams2=()
    while IFS= read -r file; do
        case "$file" in
            images/cam_*@2x.png) cams2+=("$file") ;;
            images/cam_*.png) cams+=("$file") ;;
            *@2x.png) small2+=("$file") ;;
            *.png) small+=("$file") ;;
        esac
    done < <(find images -name '*.png' | LC_ALL=C sort)
    blocks=()
    for bg in '#ffffff' '#2b2b2b'; do
        tag=${bg#\#}
        montage -background "$bg" -geometry '+5+5' -gravity center -tile x1 "${small[@]}" \
            "$scratch/a-$tag.png"
        montage -background "$bg" -geometry '+5+5' -gravity center -tile x1 "${small2[@]}" \
            "$scratch/b-$tag.png"
        montage -background "$bg" -geometry '+5+5' -gravity center -tile x1 \
            images/indicator.gif "$scratch"/icon-16.png "$scratch"/icon-32.png \
            "$scratch"/icon-48.png "$scratch"/icon-256.png "$scratch/c-$tag.png"
        montage -background "$bg" -geometry '+4+4' -tile 12x "${cams[@]}" "$scratch/d-$tag.png"
        montage -background "$bg" -geometry '+4+4' -tile 8x "${cams2[@]}" "$scratch/e-$tag.png"
        convert -background "$bg" "$scratch/a-$tag.png" "$scratch/b-$tag.png" "$scratch/c-$tag.png" \
            "$scratch/d-$tag.png" "$scratch/e-$tag.png" -gravity West -append "$scratch/block-$tag.png"
        blocks+=("$scratch/block-$tag.png")
    done
    convert -background '#888888' "${blocks[@]}" -gravity North +append +repage -depth 8 "$sheet"
    echo "render-artwork: contact sheet in $sheet"
fi
