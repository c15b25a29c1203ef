#!/usr/bin/python3
"""Takes the pictures of the main window and of each dialog that the user's guide shows:

    tools/pictures/windows.py build/release/bin/zpcad docs/pictures [--scale 2] [NAME...]

The program takes them itself, on a screen that nobody sees. Each begins with a copy of the shipped data. With
--scale 2 they are as on a screen of double density, and "@2x" stands behind their names. Needs the Debian package
python3-pil, which makes the files small.
"""

import argparse
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

from PIL import Image

SOURCE = Path(__file__).resolve().parents[2]
PLAN = SOURCE / "examples/sample-plan.dxf"
SCREEN = {"name": "screen", "x": 0, "y": 0, "width": 1600, "height": 1000, "logicalDpi": 96, "logicalBaseDpi": 96}
COLORS = 256  # of the palette of a committed picture
SECONDS = 60

MAIN = ["WB_HZGG", "采暖供水干管", "镀锌钢管(普通)", "25", "3", "0,0", "6000,0", ""]
SECTION = ["edit 管道配件 1 名称 = 散热器", "edit 管道配件 2 名称 = 弯头", "edit 管道配件 弯头 数量 = 4", "edit 管道配件 3 名称 = 闸阀",
           "set 1分/1→3 = 2", "set 3汇/1→3 = 1", "set 其它局部阻力系数 = 0.5"]
UNIT = ["PLINE", "0,0", "900,0", "900,480", "0,480", "c", "PLINE", "60,300", "840,300", "840,420", "60,420", "c",
        "PLINE", "60,300", "190,420", "320,300", "450,420", "580,300", "710,420", "840,300", "",
        "CIRCLE", "250,150", "100", "CIRCLE", "650,150", "100", "LINE", "350,150", "550,150", ""]
BLOCK = ["click 图面选取", "all", "", "0,0", "450,600"]
CHANGED = UNIT + ["KOR_FJPGGLQ", "select 风机盘管列表 FP-68", "click 修改", "set 图块名 = FJPG1"] + BLOCK + ["click 确认修改"]
NEW = UNIT + ["KOR_FJPGGLQ", "click 添加", "set 风机数量 = 2", "set 功率(W) = 58"] + BLOCK + ["set 设备型号 = FP-68H"]
HEATING = ["暖通-采暖-供水-干管", "暖通-采暖-回水-干管"]

# Name: what is typed, and the drawing that the program is started with. A picture shows what stands open at the end.
WINDOWS = {
    "main-window": (["ZOOM", "E"], PLAN),
    "system-settings": (["KOR_XTSZ"], None),
    "text-styles": (["DDSTYLE", "set 新样式名 = 仿宋", "click 新建"], None),
    "pipe-manager": (["KOR_GJGLQ", "select 管材管径 镀锌钢管(普通)", "select 管径 25"], None),
    "delete-question": (["KOR_GJGLQ", "select 管材管径 无缝钢管", "click 管材管径/删除"], None),
    "duct-manager": (["KOR_FGGJGLQ"], None),
    "duct-manager-round": (["KOR_FGGJGLQ", "select 截面形状 圆形"], None),
    "layer-manager": (["KOR_TCGLQ", "select 图层分组 全部图层/空调水路/管线", "select 图层列表 2"], None),
    "layer-batch": (["KOR_TCGLQ", "select 图层列表 1,2,3", "menu 图层列表 2 批量修改", "check 图层名称 off"], None),
    "layer-scheme-add": (["KOR_TCGLQ", "click 添加", "set 方案名称 = 二期工程"], None),
    "layer-groups": (["KOR_CADTCFZ", *[f"check 当前图纸所有图层 {layer} on" for layer in HEATING], "click 新建",
                      "edit 分组 1 分组 = 采暖管线", "select 分组 采暖管线"], PLAN),
    "layer-control-bar": (["KOR_CADTCKZ", "ZOOM", "E", "bar click 图层 建筑-房间名称 开关",
                           "bar click 图层 建筑-窗 锁定", "bar click 图层 暖通-公用-文字 冻结"], PLAN),
    "velocity-limits": (["KOR_LSGLQ", "select 流速 32"], None),
    "radiator-manager": (["KOR_SRQ", "select 散热器 四柱760型", "select 计算公式"], None),
    "radiator-add": (["KOR_SRQ", "select 散热器 四柱760型", "click 添加", "select 散热器类型"], None),
    "radiator-modify": (["KOR_SRQ", "select 散热器 TZ4-6-5(8)", "click 修改", "select 散热器材质"], None),
    "radiator-question": (["KOR_SRQ", "select 散热器 复合散热器(检测式)", "click 删除"], None),
    "coefficient-manager": (["WB_JZXS", "select 管道配件 弯头"], None),
    "coefficient-manager-tees": (["WB_JZXS", "select 局阻系数 三通四通"], None),
    "fan-coil-manager": (CHANGED, None),
    "fan-coil-model": (NEW, None),
    "fan-coil-favourites": (CHANGED + ["click 确认", "WB_BZPG", "select 常用风机盘管 FP-68|国标系列"], None),
    "radiator-calculation": (["KOR_SRQJS"], None),
    "radiator-calculation-length": (["KOR_SRQJS", "click 散热器管理器", "select 散热器 圆翼型(双排)", "click 确定", "click 计算"],
                                    None),
    "correction-factors": (["KOR_SRQJS", "click 支管连接方式修正系数β2/...",
                            "select 散热器支管连接方式修正系数β2 1 3"], None),
    "section-resistance": (MAIN + ["WB_JBZL", "3000,0"] + SECTION, None),
}


def take(program, name, scale, folder):
    """The picture as the program saves it."""
    lines, drawing = WINDOWS[name]
    data = folder / "data"
    shutil.rmtree(data, ignore_errors=True)
    shutil.copytree(SOURCE / "data", data)
    built = program.parents[1] / "data"  # with the pictures that the build makes of drawings
    if built.is_dir():
        shutil.copytree(built, data, dirs_exist_ok=True)
    script = folder / "script.scr"
    script.write_text("\n".join(lines) + "\n", encoding="utf-8")
    screen = folder / "screen.json"
    screen.write_text(json.dumps({"screens": [SCREEN | {"dpr": scale}]}))
    picture = folder / "picture.png"
    picture.unlink(missing_ok=True)
    environment = os.environ | {
        "QT_QPA_PLATFORM": f"offscreen:configfile={screen}",
        "XDG_CONFIG_HOME": str(folder / "config"),
        "XDG_DATA_HOME": str(folder / "user"),
        "XDG_RUNTIME_DIR": str(folder / "runtime"),
    }
    (folder / "runtime").mkdir(mode=0o700, exist_ok=True)
    for remains in ("config", "user"):
        shutil.rmtree(folder / remains, ignore_errors=True)
    command = [program, "--data", data, "--script", script, "--screenshot", picture]
    # From the repository: what the window says of a file must not tell where this one stands.
    command += [drawing.relative_to(SOURCE)] if drawing else []
    run = subprocess.run(command, env=environment, cwd=SOURCE, capture_output=True, text=True, timeout=SECONDS)
    if run.returncode != 0 or not picture.exists():
        sys.exit(f"{name}: status {run.returncode}\n{run.stdout}{run.stderr}")
    return Image.open(picture).convert("RGB")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("program", type=Path)
    parser.add_argument("target", type=Path)
    parser.add_argument("names", nargs="*", metavar="NAME")
    parser.add_argument("--scale", type=int, default=1)
    options = parser.parse_intermixed_args()
    suffix = f"@{options.scale}x" if options.scale != 1 else ""
    options.target.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        for name in options.names or WINDOWS:
            picture = take(options.program.resolve(), name, options.scale, Path(folder))
            file = options.target / f"{name}{suffix}.png"
            picture.quantize(COLORS, Image.Quantize.MAXCOVERAGE, dither=Image.Dither.NONE).save(file, optimize=True)
            print(f"{file}: {picture.width} x {picture.height}, {file.stat().st_size} bytes")


if __name__ == "__main__":
    main()
