"""What the program says in a language: its own translations, as the build embeds them."""
import os
import xml.etree.ElementTree as ElementTree

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "resources", "translations")


class Words:
    """Called with the place of a text in the program and the text, it answers without the mark of a mnemonic."""

    def __init__(self, language):
        self._said = {}
        for context in ElementTree.parse(os.path.join(FOLDER, f"ambertask_{language}.ts")).getroot().iter("context"):
            for message in context.iter("message"):
                self._said[context.findtext("name"), message.findtext("source")] = message.findtext("translation")

    def __call__(self, context, text):
        return self._said[context, text].replace("&", "")
