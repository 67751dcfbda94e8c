"""No library is searched for in the current directory.

    run_path_test.py BUILT…

An empty element of a run path, as in "/lib:", is the current directory.
"""

import re
import subprocess
import sys


def run_paths(dynamic_section):
    """The elements of all run paths in the output of `readelf -d`."""
    return [element for path in re.findall(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]", dynamic_section)
            for element in path.split(":")]


def main(built):
    assert run_paths("(RUNPATH) Library runpath: [/a:]\n(RPATH) Library rpath: [$ORIGIN]") == ["/a", "", "$ORIGIN"]
    status = 0
    for file in built:
        section = subprocess.run(["readelf", "-d", "--wide", file], check=True, capture_output=True, text=True).stdout
        for element in run_paths(section):
            if not element.startswith(("/", "$ORIGIN")):
                print(f'{file}: the run path has the element "{element}"; expected absolute ones or $ORIGIN')
                status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
