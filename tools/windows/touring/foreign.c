// A program of somebody else: keeps a file from everybody ("foreign file PATH"), or has made the pipe of that
// name first and never answers ("foreign pipe NAME"). Makes the file PATH.held, or NAME.held in the current
// folder, when it does so.
#include <stdio.h>
#include <string.h>
#include <wchar.h>
#include <windows.h>

int wmain(int count, wchar_t** arguments) {
  if (count != 3) return 2;
  wchar_t path[512];
  HANDLE held;
  if (wcscmp(arguments[1], L"file") == 0) {
    held = CreateFileW(arguments[2], GENERIC_READ, 0, NULL, OPEN_EXISTING, 0, NULL);
  } else {
    swprintf(path, 512, L"\\\\.\\pipe\\%ls", arguments[2]);
    held = CreateNamedPipeW(path, PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 4096, 4096, 0, NULL);
  }
  if (held == INVALID_HANDLE_VALUE) return 1;
  swprintf(path, 512, L"%ls.held", arguments[2]);
  CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL));
  Sleep(INFINITE);
  return 0;
}
