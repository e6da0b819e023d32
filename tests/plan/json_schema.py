#!/usr/bin/env python3
"""What veldrin-plan prints as JSON, held against its schema; and the schema against what is printed: each of its
members must come in one of the calls. Arguments: veldrin-plan, the schema, the folder of the sample machines."""
import json
import subprocess
import sys

program, schema_path, share = sys.argv[1:4]
schema = json.load(open(schema_path, encoding="utf-8"))
KNOWN = {"$ref", "$schema", "$defs", "title", "description", "oneOf", "type", "required", "properties", "items"}
TYPES = {"object": dict, "array": list, "string": str, "boolean": bool, "null": type(None)}
seen = set()


def is_type(value, name):
    if name in ("number", "integer"):
        return isinstance(value, int if name == "integer" else (int, float)) and not isinstance(value, bool)
    return isinstance(value, TYPES[name])


def faults(value, rule, place):
    unknown = set(rule) - KNOWN
    assert not unknown, f"the check does not know {unknown}"
    if "$ref" in rule:
        name = rule["$ref"].rsplit("/", 1)[1]
        return faults(value, schema["$defs"][name], place + ":" + name)
    if "oneOf" in rule:
        tries = [faults(value, one, place) for one in rule["oneOf"]]
        return [] if sum(not found for found in tries) == 1 else [f"{place}: not one of them: {tries}"]
    names = rule["type"] if isinstance(rule["type"], list) else [rule["type"]]
    if not any(is_type(value, name) for name in names):
        return [f"{place}: {value!r} is no {names}"]
    found = [f"{place}: {name} is missing" for name in rule.get("required", []) if name not in value]
    if isinstance(value, dict):
        for name, member in value.items():
            if name not in rule["properties"]:
                found.append(f"{place}: {name} is not in the schema")
                continue
            seen.add(place.rsplit(":", 1)[-1] + "." + name)
            found += faults(member, rule["properties"][name], place + "." + name)
    elif isinstance(value, list):
        for item in value:
            found += faults(item, rule["items"], place)
    return found


def members(rule, place):
    if "items" in rule and "$ref" not in rule["items"]:
        yield from members(rule["items"], place)
    for name, member in rule.get("properties", {}).items():
        yield place + "." + name
        yield from members(member, place + "." + name)


speeds = ["--speed", "104,134,163,185,204,216"]
nx4, dry, rain = share + "/LIST/NX4.RAT", share + "/DAT/DRY.nx4", share + "/DAT/RAIN.nx4"
calls = [
    ([nx4, *speeds], 0),
    ([nx4, *speeds, "--best", "3", "--from", dry], 0),
    ([nx4, "--speed", "104,134,163,185,204,300", "--main", "6", "--why"], 1),
    (["--show", dry, "--tyre-from", "104@13000:1"], 0),
    (["--show", dry, "--tyre-from", "104@13000:1", "--tyre-from", "134@13000:2"], 0),
    (["--compare", dry, rain], 0),
]
wrong = []
for words, status in calls:
    done = subprocess.run([program, *words, "--format", "json"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    if done.returncode != status:
        wrong.append(f"{words}: exit status {done.returncode}, expected {status}")
        continue
    wrong += [f"{words}: {fault}" for fault in faults(json.loads(done.stdout), schema, "")]
for name, rule in schema["$defs"].items():
    wrong += [f"{member} of the schema is never printed" for member in members(rule, name) if member not in seen]
# A schema that takes anything would prove nothing.
for spoilt in ({"machine": "X", "tyre": 1, "shift_ne": 1}, {"machine": "X", "tyre": "1", "shift_ne": 1, "plans": []}):
    if not faults(spoilt, schema, ""):
        wrong.append(f"the schema takes {spoilt}")
print("\n".join(wrong))
sys.exit(bool(wrong))
