// Nothing but the headers that are compiled before it.
