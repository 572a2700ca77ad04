"""check_schema.py schema.json report.json: whether a report is what the schema describes.

Knows the words of JSON Schema that our schema uses and stops at any other. Then plants faults in the report, one of
each kind, and stops if the schema lets one through: a schema that takes everything describes nothing.
"""

import copy
import json
import sys

TYPES = {"object": dict, "array": list, "string": str, "null": type(None)}
WORDS = {"$schema", "title", "description", "$defs", "$ref", "type", "properties", "required", "additionalProperties"}
WORDS |= {"items", "enum", "const", "minimum", "anyOf"}


def is_type(value, name):
    if name in ("integer", "number"):
        return isinstance(value, int if name == "integer" else (int, float)) and not isinstance(value, bool)
    return isinstance(value, TYPES[name])


def problems(schema, value, root, where="report"):
    unknown = set(schema) - WORDS
    if unknown:
        sys.exit(f"the schema has words that this check does not know: {sorted(unknown)}")
    if "$ref" in schema:
        target = root
        for step in schema["$ref"].removeprefix("#/").split("/"):
            target = target[step]
        yield from problems(target, value, root, where)
    if "const" in schema and value != schema["const"]:
        yield f"{where}: {value!r} is not {schema['const']!r}"
    if "enum" in schema and value not in schema["enum"]:
        yield f"{where}: {value!r} is none of {schema['enum']}"
    if "anyOf" in schema and all(list(problems(choice, value, root, where)) for choice in schema["anyOf"]):
        yield f"{where}: {value!r} fits none of the choices"
    names = schema.get("type", [])
    names = [names] if isinstance(names, str) else names
    if names and not any(is_type(value, name) for name in names):
        yield f"{where}: {value!r} is not of type {' or '.join(names)}"
        return
    if "minimum" in schema and value is not None and value < schema["minimum"]:
        yield f"{where}: {value} is less than {schema['minimum']}"
    if isinstance(value, dict):
        yield from (f"{where}: no member {key!r}" for key in schema.get("required", []) if key not in value)
        members = schema.get("properties", {})
        for key, member in value.items():
            if key in members:
                yield from problems(members[key], member, root, f"{where}.{key}")
            elif schema.get("additionalProperties", True) is False:
                yield f"{where}: the member {key!r} is not described"
    if isinstance(value, list) and "items" in schema:
        for i, element in enumerate(value):
            yield from problems(schema["items"], element, root, f"{where}[{i}]")


def faulty(report):
    """Reports with one fault each."""

    def column(changed):
        return changed["files"][0]["rounding"]["columns"][0]

    for name, spoil in {
        "another format": lambda r: r.update(format=2),
        "no format": lambda r: r.pop("format"),
        "no files": lambda r: r.pop("files"),
        "a member too many": lambda r: column(r).update(exact=1),
        "a member missing": lambda r: column(r).pop("exact_count"),
        "a share in place of a count": lambda r: column(r).update(exact_count=0.5),
        "a negative count": lambda r: column(r).update(value_count=-1),
        "a word in place of a number": lambda r: column(r).update(maximum="large"),
        "no number where there must be one": lambda r: column(r).update(minimum=None),
        "an unknown reason": lambda r: r["files"][0].update(skipped=[{"column": "a", "reason": "bad"}]),
    }.items():
        changed = copy.deepcopy(report)
        spoil(changed)
        yield name, changed


def main():
    with open(sys.argv[1], encoding="utf-8") as schema_file, open(sys.argv[2], encoding="utf-8") as report_file:
        schema, report = json.load(schema_file), json.load(report_file)
    found = list(problems(schema, report, schema))
    for name, changed in faulty(report) if not found else ():
        if not list(problems(schema, changed, schema)):
            found.append(f"the schema lets through {name}")
    print("\n".join(found) or "as described")
    sys.exit(1 if found else 0)


main()
