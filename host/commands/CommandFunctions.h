// The functions behind the host's commands, one source each.
#pragma once

namespace commands {

void Appload();
void Circle();
void Clayer();
void Close();
void Erase();
void Help();
void Id();
void Layer();
void Line();
void List();
void New();
void Open();
void Point();
void Quit();
void Recover();
void Redo();
void Regen();
void Save();
void SaveAs();
void Script();
void Select();
void SetVar();
void U();
void Undo();

} // namespace commands
