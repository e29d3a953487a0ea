"""Builds the help from its topics: Tallyrex.hlp for the Windows help viewer, Tallyrex.html for a browser.

usage: build_help.py FOLDER_FOR_THE_RESULT
"""

import sys
from pathlib import Path

from hlp_writer import write_hlp
from html_writer import write_html, write_redirect
from topic_checks import FINANCIAL_CALCULATOR_NUMBER, find_problems
from topic_source import HelpError, load_topics

NAME = "Tallyrex"
TITLE = "Tallyrex Help"
TOPICS = Path(__file__).with_name("topics")


def build(topics, folder):
    """Writes the files into `folder` and gives their names."""
    financial = next(topic for topic in topics if topic.number == FINANCIAL_CALCULATOR_NUMBER)
    page_name = f"{NAME}.html"
    files = {
        f"{NAME}.hlp": write_hlp(TITLE, topics),
        page_name: write_html(TITLE, topics).encode("utf-8"),
        f"{NAME}-{financial.number}.html": write_redirect(page_name, financial).encode("utf-8"),
    }
    folder = Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    for name, data in files.items():
        (folder / name).write_bytes(data)
    return list(files)


def main(arguments):
    if len(arguments) != 1:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    try:
        topics = load_topics(TOPICS)
        problems = find_problems(topics)
    except HelpError as error:
        problems = [str(error)]
    if problems:
        print("\n".join(problems), file=sys.stderr)
        return 1
    build(topics, arguments[0])
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
