// Nothing but the headers of all tests, which its target compiles for them.
