"""What MkDocs does not do by itself for the site of scripts/docs."""

import json
import os
from pathlib import Path
from xml.etree import ElementTree

from mkdocs.exceptions import PluginError
from mkdocs.structure.files import File


def on_files(files, config):
    """Leads a link to a header to its page of the API reference, or to that of its class if it has exactly one; and a link
    to an example to its page there."""
    def add(source, page):
        file = File(f"api/{page}", config["docs_dir"], config["site_dir"], use_directory_urls=False)
        file.src_path = source
        files.append(file)

    root = Path.cwd()
    compounds = ElementTree.parse(Path(config["docs_dir"], "../api.tag")).getroot()
    page_of = {compound.findtext("name"): compound.findtext("filename") for compound in compounds}
    for header in compounds.iterfind("compound[@kind='file']"):
        classes = [found.text for found in header.iterfind("class")]
        page = page_of[classes[0]] if len(classes) == 1 else header.findtext("filename")
        add(os.path.relpath(header.findtext("path") + header.findtext("name")), page)
    for example in root.glob("examples/**/*.cpp"):
        source = str(example.relative_to(root))
        add(source, source.replace("/", "_2").replace(".", "_8") + "-example.html")
    return files


def on_nav(nav, files, config):
    """Every page is in the navigation."""
    missing = {file.src_path for file in files.documentation_pages()} - {page.file.src_path for page in nav.pages}
    if missing:
        raise PluginError(f"mkdocs.yml: no entry for {sorted(missing)}")


def on_post_build(config):
    """Makes the search work without a server: there, a browser neither fetches the index nor starts a worker from a file."""
    site = Path(config["site_dir"])
    index = (site / "search/search_index.json").read_text()
    worker, = site.glob("assets/javascripts/workers/search.*.min.js")
    (site / "search/offline.js").write_text(
        f"var __search = {{index: Promise.resolve({index}),"
        f" worker: URL.createObjectURL(new Blob([{json.dumps(worker.read_text())}]))}}\n")
