#include "shell/ui/EditingAreaEvents.h"

#include "document/ui/EditingAreaView.h"
#include "document/ui/ReadoutsView.h"
#include "drawing/ui/MouseInputs.h"
#include "platform/qt/PathText.h"
#include "shell/Shell.h"

namespace gp {

void connectTools(EditingAreaView& view, Shell& shell) {
  using View = EditingAreaView;
  Tools* const tools = &shell.drawing().tools;
  Shell* const guard = &shell;
  view.setHoldQuestion([tools] { return tools->isHeld(); });
  view.setPixelDescription([tools](QPoint pixel) {
    return QString("X=%1  Y=%2  ").arg(pixel.x() + 1).arg(pixel.y() + 1) +
           spokenPixel(toText(tools->pixelText(pixel.x(), pixel.y())));
  });
  QObject::connect(&view, &View::pressed, &view, [=](QPointF at, Qt::MouseButton button, auto modifiers, bool byKey) {
    guard->guarded("picDisp_MouseDown", [&] { tools->press(mouseInput(at, modifiers, button, byKey)); });
  });
  QObject::connect(&view, &View::moved, &view, [=](QPointF at, auto modifiers, bool byKey) {
    guard->guarded("picDisp_MouseMove", [&] { tools->move(mouseInput(at, modifiers, Qt::NoButton, byKey)); });
  });
  QObject::connect(&view, &View::released, &view, [=](QPointF at, Qt::MouseButton button, auto modifiers, bool byKey) {
    guard->guarded("picDisp_MouseUp", [&] { tools->release(mouseInput(at, modifiers, button, byKey)); });
  });
  QObject::connect(&view, &View::left, &view, [=] { tools->leave(); });
  QObject::connect(&view, &View::givenUp, &view, [=] { guard->guarded("picDisp_KeyDown", [&] { tools->giveUp(); }); });
  QObject::connect(&view, &View::sizeRequested, &view, [=](QPoint step) {
    guard->guarded("picDisp_KeyDown", [&] { guard->drawing().regions.sizeBy(step.x(), step.y()); });
  });
}

}  // namespace gp
