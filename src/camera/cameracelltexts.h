#pragma once

#include <QString>

class Camera;

// What the camera table shows for a camera in its Free, Avail. and Type
// columns, the model text and the status icon: shared by the table and by a
// command-line listing. Texts are translated in the camera list's context.
namespace CameraCellTexts {

QString typeText(const Camera& camera);
QString modelText(const Camera& camera);
QString freeText(const Camera& camera);
QString availableText(const Camera& camera);
bool isAvailable(const Camera& camera);
// ":/images/..." of the status icon.
QString iconName(const Camera& camera);

// What a column of the table means, with the abbreviations it can show
// (column numbers as CameraListModel::Column).
QString columnToolTip(int column);
// What the camera's cell says, where the text is an abbreviation; else empty.
QString cellToolTip(const Camera& camera, int column);

} // namespace CameraCellTexts
