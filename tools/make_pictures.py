#!/usr/bin/python3
"""Renders the pictures below resources/ from their drawings in resources/drawings.

usage: make_pictures.py [--check]     --check only tells whether the committed pictures are what the drawings give.

drawings/<path>.svg becomes <path>.png at the drawing's own size; the system avatars become .jpg, as their names are
made by the client. What style sheets name becomes <path>@2x.png as well, which Qt takes on dense screens. Heads are scaled
by who shows them: they have 400 pixels, so that none is ever enlarged. Colours are those of src/common/Palette.def; lines
are a pixel wide and lie on whole pixels.

Needs the Debian packages librsvg2-bin and python3-pil.
"""

import io
import pathlib
import subprocess
import sys

from PIL import Image

RESOURCES = pathlib.Path(__file__).resolve().parent.parent / "resources"
DRAWINGS = RESOURCES / "drawings"
PHOTOS = {"SystemAvatar"}
IN_STYLE_SHEETS = (
    "images/CommonCtrls/kvim_common_back_*",
    "images/CommonCtrls/kvim_list_ic_selected.*",
    "images/icon/*",
    "images/skins/*",
)


def rendered(drawing, scale=1):
    command = ["rsvg-convert", "--zoom", str(scale), str(drawing)]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


def as_photo(png):
    photo = io.BytesIO()
    Image.open(io.BytesIO(png)).convert("RGB").save(photo, "JPEG", quality=95, subsampling=0)
    return photo.getvalue()


def pictures():
    """Yields each picture's file and content."""
    for drawing in sorted(DRAWINGS.rglob("*.svg")):
        path = drawing.relative_to(DRAWINGS)
        png = rendered(drawing)
        if path.parts[0] in PHOTOS:
            yield RESOURCES / path.with_suffix(".jpg"), as_photo(png)
        else:
            yield RESOURCES / path.with_suffix(".png"), png
        if any(path.match(pattern) for pattern in IN_STYLE_SHEETS):
            yield RESOURCES / path.with_name(path.stem + "@2x.png"), rendered(drawing, 2)


def main():
    check = sys.argv[1:] == ["--check"]
    stale = []
    for file, content in pictures():
        if check:
            if not file.exists() or file.read_bytes() != content:
                stale.append(str(file))
            continue
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_bytes(content)
    if stale:
        sys.exit("not what the drawings give: " + ", ".join(stale) + f"; run {sys.argv[0]}")


if __name__ == "__main__":
    main()
