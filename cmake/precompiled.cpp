// The sets of precompiled headers need a source file.
