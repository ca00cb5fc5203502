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
        return map_html(value)
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


def _more(count, what):
    return f"<p>… {count} more {what}</p>" if count > 0 else ""


def options_html(options):
    """Every option that is set, with what it holds."""
    path = options._owner.path
    title = f"<p>options of {_code(path) if path else _text(type(options._owner).__name__)}</p>"
    if not options._owner.alive:
        return title + "<p>(gone)</p>"
    names = list(options)
    if not names:
        return title + "<p>none is set</p>"
    return title + "".join(f"<p>{_code(name)}</p>{object_html(options[name], nested=True)}"
                           for name in names)


def list_html(elements):
    """The elements with their places."""
    path = elements._owner.path
    title = f"{path}.{elements._field}" if path else \
        f"{type(elements._owner).__name__}.{elements._field}"
    if not elements._owner.alive:
        return f"<p>{_code(title)} (gone)</p>"
    shown = "".join(
        f"<p>{_code(f'[{place}]')}</p>"
        + ("<p>nothing</p>" if element is None else object_html(element, nested=True))
        for place, element in enumerate(elements[:_MOST_ROWS]))
    return f"<p>{_code(title)}</p>{shown or '<p>no elements</p>'}" \
        + _more(len(elements) - _MOST_ROWS, "elements")


def map_html(entries):
    """Names and numbers."""
    return "".join(f"{_text(name)}: {_text(number)}<br/>" for name, number in entries.items())


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
