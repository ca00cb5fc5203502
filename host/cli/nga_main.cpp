#include "nga_Tool.h"

int main(int argc, char** argv) { return nga::RunTool(argc, argv); }
