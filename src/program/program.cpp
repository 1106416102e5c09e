#include "program/program.h"

#include "draws/veridraw7f.h"
#include "lotto/veridraw7b.h"
#include "powerball/veridraw7e.h"
#include "shell/veridraw7a.h"
#include "shell/veridraw7d.h"
#include "strike/veridraw7c.h"

namespace veridraw {

void addVeridrawForms(Application& application) {
  application.addForm<Veridraw7a>();
  application.addForm<Veridraw7d>();
  application.addForm<Veridraw7f>();
  application.addForm<Veridraw7b>();
  application.addForm<Veridraw7c>();
  application.addForm<Veridraw7e>();
}

}  // namespace veridraw
