"""What must hold for the topics as a whole before anything is built from them."""

from pathlib import Path

from topic_source import LINK, ContentsList, Heading, ListBlock, Note, Paragraph, Picture, Sample, Table

PICTURES = Path(__file__).resolve().parent.parent / "docs" / "pictures"
CONTENTS_NUMBER = 1
FINANCIAL_CALCULATOR_NUMBER = 23
FINANCIAL_CALCULATOR_TITLE = "Financial calculator"
# In characters, at the size in which the help window opens.
_MOST_BEFORE_LAST_COLUMN, _MOST_IN_TABLE = 56, 84


def spans_of(block):
    """All spans of a block, in their order."""
    if isinstance(block, (Heading, Paragraph, Note)):
        return list(block.spans)
    if isinstance(block, ListBlock):
        return [span for item in block.items for span in item]
    if isinstance(block, Table):
        return [span for row in block.rows for cell in row for span in cell]
    return []


def links_of(topic, topics):
    """The file names of the topics that a topic leads to."""
    targets = list(topic.see)
    for block in topic.blocks:
        targets += [span.target for span in spans_of(block) if span.style == LINK]
        if isinstance(block, ContentsList):
            targets += [other.slug for other in topics if other is not topic]
    return targets


def find_problems(topics):
    """One line of text for each thing that is wrong; nothing when all is well."""
    problems = _number_problems(topics)
    slugs = {topic.slug for topic in topics}
    for topic in topics:
        for target in links_of(topic, topics):
            if target not in slugs:
                problems.append(f"{topic.slug}: links to '{target}', which is no topic")
        problems += _text_problems(topic) + _table_problems(topic) + _picture_problems(topic)
    return problems + _keyword_problems(topics) + _reach_problems(topics)


def _number_problems(topics):
    problems, by_number = [], {}
    for topic in topics:
        first = by_number.setdefault(topic.number, topic)
        if first is not topic:
            problems.append(f"{first.slug} and {topic.slug} have the number {topic.number}")
    contents = by_number.get(CONTENTS_NUMBER)
    if contents is None or not any(isinstance(block, ContentsList) for block in contents.blocks):
        problems.append(f"topic {CONTENTS_NUMBER} must hold the line {{contents}}")
    # The program opens this number from the financial calculator's help button.
    financial = by_number.get(FINANCIAL_CALCULATOR_NUMBER)
    if financial is None or financial.title != FINANCIAL_CALCULATOR_TITLE:
        problems.append(f"topic {FINANCIAL_CALCULATOR_NUMBER} must be '{FINANCIAL_CALCULATOR_TITLE}'")
    return problems


def _text_problems(topic):
    """The help viewer knows the Western code page only."""
    texts = [topic.title, topic.chapter, *topic.keywords, *topic.messages]
    for block in topic.blocks:
        texts += [span.text for span in spans_of(block)]
        texts += block.lines if isinstance(block, Sample) else ()
    problems = []
    for text in texts:
        try:
            text.encode("cp1252")
        except UnicodeEncodeError as error:
            problems.append(f"{topic.slug}: '{text[error.start]}' cannot be shown by the help viewer")
    return problems


def _table_problems(topic):
    """The viewer sets tables with tabs: only the last column wraps, and it needs some room for that."""
    problems = []
    for block in topic.blocks:
        if isinstance(block, Table):
            widths = [max(len("".join(span.text for span in cell)) for cell in column) for column in zip(*block.rows)]
            if sum(widths[:-1]) > _MOST_BEFORE_LAST_COLUMN and sum(widths) > _MOST_IN_TABLE:
                problems.append(f"{topic.slug}: a table leaves too little room for its last column")
    return problems


def _picture_problems(topic):
    names = [block.name for block in topic.blocks if isinstance(block, Picture)]
    return [
        f"{topic.slug}: shows '{name}', which is no picture"
        for name in names
        if not (PICTURES / f"{name}.png").is_file()
    ]


def _keyword_problems(topics):
    """The index lists words that differ by capitals only as two."""
    problems, written = [], {}
    for topic in topics:
        for keyword in topic.keywords:
            first = written.setdefault(keyword.lower(), keyword)
            if first != keyword:
                problems.append(f"{topic.slug}: the keyword '{keyword}' is also written '{first}'")
    return problems


def _reach_problems(topics):
    by_slug = {topic.slug: topic for topic in topics}
    waiting = [topic for topic in topics if topic.number == CONTENTS_NUMBER]
    reached = set()
    while waiting:
        topic = waiting.pop()
        if topic.slug not in reached:
            reached.add(topic.slug)
            waiting += [by_slug[slug] for slug in links_of(topic, topics) if slug in by_slug]
    return [f"{topic.slug}: cannot be reached from the contents" for topic in topics if topic.slug not in reached]
