// Nothing but the headers of all tests of examples, which its target compiles for them.
