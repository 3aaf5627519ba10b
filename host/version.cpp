namespace host {
const char* const kVersion = "1";
}
