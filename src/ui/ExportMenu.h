#pragma once

#include <QString>

class frmMain;

/// Asks for a file and writes the selected employees to it.
void mnuEmpExport_Click(frmMain& window);
/// Asks for a file and writes all departments to it.
void mnuDeptExport_Click(frmMain& window);

/// Writes the selected employees to the file and tells whether that was done; nothing for an empty name. An
/// older file stays when the writing fails, and the status bar says why it did.
void ExportEmpXML(const QString& FileName, frmMain& window);
/// The same with all departments.
void ExportDeptXML(const QString& FileName, frmMain& window);
