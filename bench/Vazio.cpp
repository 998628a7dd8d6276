// The program that does nothing, for the start of the command to be compared with.
int main() {}
