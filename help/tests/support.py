"""What the tests of the help share: the path to the generator, and the topics."""

import sys
from pathlib import Path

HELP = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(HELP))

from topic_source import load_topics  # noqa: E402

TOPICS = load_topics(HELP / "topics")


def plain(spans):
    """The text of some spans as a reader sees it."""
    return "".join(span.text for span in spans)


def one_spaced(text):
    """The text with every run of blanks made one."""
    return " ".join(text.split())
