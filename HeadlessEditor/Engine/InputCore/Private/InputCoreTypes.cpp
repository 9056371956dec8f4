#include "InputCoreTypes.h"

const FKey EKeys::AnyKey("AnyKey");

const FKey EKeys::BackSpace("BackSpace");
const FKey EKeys::Tab("Tab");
const FKey EKeys::Enter("Enter");
const FKey EKeys::Escape("Escape");
const FKey EKeys::SpaceBar("SpaceBar");
const FKey EKeys::Delete("Delete");

const FKey EKeys::Left("Left");
const FKey EKeys::Up("Up");
const FKey EKeys::Right("Right");
const FKey EKeys::Down("Down");

const FKey EKeys::A("A");
const FKey EKeys::B("B");
const FKey EKeys::C("C");

const FKey EKeys::Invalid(NAME_None);
