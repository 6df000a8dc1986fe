// Placeholder entry point replaced by the command line.
int main() { return 1; }
