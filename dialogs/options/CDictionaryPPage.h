#pragma once

#include "dialogs/options/OptionsPage.h"

namespace ondrilo {

/// How much each factor counts in the order of predicted words, and what is learned.
class CDictionaryPPage : public OptionsPage {
  public:
    explicit CDictionaryPPage(const OptionsPageContext& context);

  private:
    /// A row a factor; a column for the general dictionary and one for the person's own.
    [[nodiscard]] QWidget* CreateWeights();
};

} // namespace ondrilo
