// Gives the precompiled headers of the test framework a program to belong to.
int main() {}
