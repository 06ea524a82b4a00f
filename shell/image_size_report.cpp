// Filled in as the pieces land.
