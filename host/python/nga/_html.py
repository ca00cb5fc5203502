"""How documents and objects look in a notebook."""
import html

from . import _nga
from ._classes import all_fields

_MOST_ROWS = 20
_MOST_NAMES = 50


def _text(value):
    return html.escape(str(value).encode("utf-8", "backslashreplace").decode())


def _code(value):
    return f"<code>{_text(value)}</code>"


def _table_html(cells):
    rows = ["<tr>" + "".join(f"<td>{_text(repr(float(cell)))}</td>" for cell in row) + "</tr>"
            for row in cells[:_MOST_ROWS]]
    if len(cells) > _MOST_ROWS:
        rows.append(f"<tr><td>… {len(cells) - _MOST_ROWS} more rows</td></tr>")
    return f"<table>{''.join(rows)}</table>" if rows else "no rows"


def _value_html(item, field):
    value = getattr(item, field["script"])
    if field["is_table"]:
        return _table_html(value)
    if field["kind"] in ("object", "option"):
        return object_html(value, nested=True)
    if field["kind"] in ("options", "list"):
        return "".join(object_html(one, nested=True) for one in value if one is not None)
    if field["kind"] == "map":
        return "".join(f"{_text(name)}: {_text(number)}<br/>" for name, number in value.items())
    return _code(repr(value) if field["kind"] != "str" else value)


def object_html(item, nested=False):
    """The fields that are not at their defaults, what is in the object, and its picture."""
    title = _text(type(item).__name__)
    if not nested:
        title += f" {_code(item.path)}" if item.path else " of no document"
        if not item.alive:
            return f"<p>{title} (gone)</p>"
    changed = set(_nga.changed(item))
    rows = "".join(f"<tr><th style='text-align:left'>{_text(field['script'])}</th>"
                   f"<td style='text-align:left'>{_value_html(item, field)}</td></tr>"
                   for field in all_fields(type(item)) if field["script"] in changed)
    body = f"<table>{rows}</table>" if rows else "<p>all fields at their defaults</p>"
    if nested:
        return f"<details open='open'><summary>{title}</summary>{body}</details>"
    return f"<p>{title}</p>{body}{_picture(item)}"


def _picture(item):
    svg = _nga.svg(item)
    # Within a page, what makes it a document of its own has no place.
    return svg[svg.index("<svg"):] if svg else ""


def repository_html(repository):
    names = list(repository)
    rows = "".join(f"<tr><td style='text-align:left'>{_code(repr(name))}</td>"
                   f"<td style='text-align:left'>{_text(type(repository[name]).__name__)}</td></tr>"
                   for name in names[:_MOST_NAMES])
    if len(names) > _MOST_NAMES:
        rows += f"<tr><td>… {len(names) - _MOST_NAMES} more</td></tr>"
    return f"<p>{_code(repository.path)}</p><table>{rows}</table>"


def document_html(document):
    rows = "".join(f"<tr><td style='text-align:left'>{_code('.' + repository.name)}</td>"
                   f"<td>{len(repository)}</td></tr>" for repository in document.collections)
    return f"<p>{_code(document.path)}</p><table>{rows}</table>"
