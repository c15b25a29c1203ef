// The functions behind the host's commands, one source each.
#pragma once

namespace commands {

void Appload();
void Arc();
void Audit();
void Circle();
void Clayer();
void Close();
void Copy();
void Erase();
void Export();
void Help();
void Id();
void Insert();
void Layer();
void Line();
void List();
void Move();
void New();
void Open();
void Pline();
void Point();
void Purge();
void Quit();
void Recover();
void Redo();
void Regen();
void Rotate();
void Save();
void SaveAs();
void Script();
void Select();
void SetVar();
void Text();
void TextStyle();
void U();
void Undo();
void Zoom();

} // namespace commands
