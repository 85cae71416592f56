"""Checks catalogues against the schema that is named on the command line.

Reads one JSON document a line and answers each with one line, a JSON array of complaints. Says
"ready" first, or why it cannot serve.
"""

import json
import sys

try:
    import jsonschema
except ImportError:
    sys.exit("no module jsonschema")

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)

print("ready", flush=True)
for line in sys.stdin:
    errors = validator.iter_errors(json.loads(line))
    print(json.dumps([f"{error.json_path}: {error.message}" for error in errors]), flush=True)
