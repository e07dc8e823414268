#ifndef STRTABLE_H
#define STRTABLE_H

#include <QString>

// The UI texts shared with the rest of the client: every text has a fixed id,
// a key and an English source text that the installed catalogue translates.
namespace StrTable {

// The rows the launcher itself shows.
const int kAppName = 202;                     // app_name: the dialog's title
const int kEnvironmentPreparing = 393;        // desc_drov_env_preparing: its first label
const int kEnvironmentPreparationDone = 465;  // desc_drov_env_preparation_done: its last

// Fills the table; must run once before LoadStr or LookupStrID.
void InitStrTable();

// The text of row id in the current language, with "\n" and "\t" escapes
// of the catalogue turned into a line feed and a tab.
QString LoadStr(int id);

// The id whose key equals key ignoring case, or -1.
int LookupStrID(QString key);

}  // namespace StrTable

#endif  // STRTABLE_H
