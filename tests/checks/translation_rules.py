# SPDX-License-Identifier: LGPL-2.1-or-later
"""The rules that translations of one text keep, whatever they say."""
import re

# How many plural forms Qt knows of each language, and which of them stand for one number only and may leave it out.
PLURAL_FORMS = {
    "ar": (6, {0, 1, 2}),
    "de": (2, {0}),
    "en": (2, {0}),
    "es": (2, {0}),
    "fr": (2, set()),  # the first one is also that of 0
    "pl": (3, {0}),
    "pt_BR": (2, set()),
}

ENDS = {
    "an ellipsis": re.compile(r"(…|\.\.\.)$"),
    "a colon": re.compile(r"[:：]$"),
    "the end of a sentence": re.compile(r"(?<!\.\.)[.?!؟]$"),
}
QUOTES = "\"'”“»«’‘)"


def language_of(file_name):
    """kirv_pt_BR.ts is of pt_BR."""
    return re.fullmatch(r".*?kirv_(\w+)\.ts", file_name).group(1)


def placeholders(text):
    return set(re.findall(r"%L?(?:\d{1,2}|n)", text))


def mnemonics(text):
    """Without "&&", which shows an ampersand, and entities of rich text."""
    return len(re.findall(r"&(?!\w+;)\S", text.replace("&&", "")))


def end_of(text):
    text = text.rstrip().rstrip(QUOTES)
    for name, pattern in ENDS.items():
        if pattern.search(text):
            return name
    return "none of these"


def blanks(text):
    return re.match(r"\s*", text).group(), re.search(r"\s*$", text).group()


def slips_in_text(source, translation, may_lack_number=False):
    """What is wrong with one translation, in a few words each."""
    if not translation.strip():
        return ["it is empty"]
    slips = []
    missing = placeholders(source) - placeholders(translation)
    if may_lack_number:
        missing -= {"%n", "%Ln"}
    if missing:
        slips.append("it lacks " + ", ".join(sorted(missing)))
    extra = placeholders(translation) - placeholders(source)
    if extra:
        slips.append("the text has no " + ", ".join(sorted(extra)))
    if mnemonics(source) != mnemonics(translation):
        slips.append(f"it has {mnemonics(translation)} mnemonics, the text {mnemonics(source)}")
    if end_of(source) != end_of(translation):
        slips.append(f"it ends with {end_of(translation)}, the text with {end_of(source)}")
    if blanks(source) != blanks(translation):
        slips.append("it begins or ends with other blanks")
    return slips


def slips_in_message(language, source, translation):
    """Of one <message>; translation is its element."""
    if translation.get("type") == "unfinished":
        return ["it is not finished"]
    if translation.get("type"):
        return ["the text is gone"]
    forms = translation.findall("numerusform")
    if not forms:
        return slips_in_text(source, translation.text or "")
    number, without_number = PLURAL_FORMS[language]
    slips = []
    if len(forms) != number:
        slips.append(f"it has {len(forms)} plural forms, {language} has {number}")
    for index, form in enumerate(forms):
        slips += slips_in_text(source, form.text or "", index in without_number)
    return slips


def slips_in(language, catalogue):
    """Of a whole catalogue, an element <TS>: lines for people."""
    lines = []
    for context in catalogue.iter("context"):
        for message in context.iter("message"):
            source = message.findtext("source")
            for slip in slips_in_message(language, source, message.find("translation")):
                lines.append(f"{context.findtext('name')}: {source!r}: {slip}.")
    return lines
