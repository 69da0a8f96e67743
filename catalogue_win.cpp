#include "catalogue_win.h"

#include "core/options_dialog.h"
#include "widgets/time/clock_dialog.h"
#include "widgets/time/clock_form.h"

namespace varnel {
namespace {

constexpr CatalogueWidget kWidgets[] = {{0, MakeWidget<ClockForm>}};
constexpr CatalogueDialog kDialogs[] = {{L"frmVRNpr", MakeDialog<OptionsDialog>},
                                        {L"frmCLKpr", MakeDialog<ClockDialog>}};
constexpr Catalogue kCatalogue{kWidgets, kDialogs};

}  // namespace

const Catalogue& ProgramCatalogue() {
  return kCatalogue;
}

}  // namespace varnel
