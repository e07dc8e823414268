// Deletes one tree through the file layer: the removal benchmark times it
// against rm -rf on copies of the same tree.
#include "file-op.h"

int main(int argc, char** argv)
{
    return argc == 2 && FSRemove(argv[1], false) == FS_OK ? 0 : 1;
}
