// Only carries the precompiled header: a library needs a source.
