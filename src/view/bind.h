// Binding of events to their handlers, which are free functions that take the program first:
//
//   On(program, program.form2.Command6.Click, Command6_Click);
//   OnEach(program, program.form2.Spin6, &SpinButton::SpinUp, Spin6_SpinUp);   // handler gets the subscript
//
// A handler that wants to know the button, key or reason takes it as its last argument.
#pragma once

#include "view/control_array.h"

namespace veldrin {

template <class Context>
void On(Context& context, Event& event, void (*handler)(Context&)) {
  event.Bind([&context, handler](int) { handler(context); });
}

template <class Context>
void On(Context& context, Event& event, void (*handler)(Context&, int argument)) {
  event.Bind([&context, handler](int argument) { handler(context, argument); });
}

/// The event of every element, those that the array grows by included. `Owner` is the kind of the elements,
/// or what kinds have in common.
template <class Context, class T, class Owner>
void OnEach(Context& context, ControlArray<T>& array, Event Owner::*event,
            void (*handler)(Context&, int index)) {
  array.ForEach([&context, event, handler](T& element) {
    (element.*event).Bind([&context, handler, index = element.index](int) { handler(context, index); });
  });
}

template <class Context, class T, class Owner>
void OnEach(Context& context, ControlArray<T>& array, Event Owner::*event,
            void (*handler)(Context&, int index, int argument)) {
  array.ForEach([&context, event, handler](T& element) {
    (element.*event).Bind([&context, handler, index = element.index](int argument) {
      handler(context, index, argument);
    });
  });
}

}  // namespace veldrin
