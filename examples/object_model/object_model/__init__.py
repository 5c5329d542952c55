"""A report generator: the reference of an object model, from GObject introspection files."""
