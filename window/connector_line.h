#pragma once

class QFrame;

/// The thin lines that connect a check box with what depends on it are drawn active or inactive like
/// the text of an enabled or disabled control, so that every colour scheme suits them.
void drawConnector(QFrame& line, bool isActive);
