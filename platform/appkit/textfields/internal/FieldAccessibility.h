#pragma once

class QLineEdit;

/// Lets assistive tools read and select the text of a field, but set it only while the field is not read-only. (The
/// toolkit's own line edits take a tool's text also when they are read-only.)
void letAssistiveToolsOnlyRead(QLineEdit *field);
