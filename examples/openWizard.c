/*
 * A whole host in plain C: opens the wizard on a task database and says what the wizard tells it.
 *
 *     cc openWizard.c -o openWizard -I/usr/include/tarnel -ldl
 *     ./openWizard tasks.db                       in a window
 *     echo 'key 27' | ./openWizard tasks.db -     without a screen, commands on the standard input
 *
 * A third argument names the component's file where it is not installed.
 */
#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

#include "TarnelOutWizard.h"

/* ---- the sink: it lives as long as the program and needs no counting ---- */

static TarnelResult sinkQueryInterface(__clsTarnelOutWizard* self, const TarnelGuid* id, void** object) {
  int known = memcmp(id, &DIID___clsTarnelOutWizard, sizeof *id) == 0 || memcmp(id, &IID_TarnelObject, sizeof *id) == 0;
  *object = known ? self : NULL;
  return known ? TARNEL_OK : TARNEL_NO_INTERFACE;
}

static uint32_t sinkCount(__clsTarnelOutWizard* self) {
  (void)self;
  return 1;
}

static TarnelResult sinkInvoke(__clsTarnelOutWizard* self, int32_t event, TarnelVariant* arguments, uint32_t count) {
  const char* name = tarnelEventName(event);
  (void)self;
  printf("event %d %s", (int)event, *name ? name : "of a later version");
  if (event == TARNEL_UPDATE_OUTLOOK_SETTINGS && count == 3) {
    const TarnelText* profile = &arguments[2].value.variantReference->value.text;
    printf(" tasks=%d appointments=%d profile=%.*s", (int)*arguments[0].value.int32Reference,
           (int)*arguments[1].value.int32Reference, (int)profile->length, profile->bytes);
  }
  printf("\n");
  fflush(stdout);
  return TARNEL_OK;
}

static const __clsTarnelOutWizardOperations sinkOperations = {sinkQueryInterface, sinkCount, sinkCount, sinkInvoke};
static __clsTarnelOutWizard sink = {&sinkOperations};

/* ---- the wizard ---- */

static int openWizard(TarnelClassFactory* factory, const char* database, int script) {
  static char text[4200];
  _clsTarnelOutWizard* wizard = NULL;
  TarnelConnectionPoints* points = NULL;
  TarnelConnectionPoint* point = NULL;
  TarnelWizardControl* control = NULL;
  TarnelBool appointments = TARNEL_NO;
  TarnelText hours = tarnelText("DAY"), interval = tarnelText("M30"), connection;
  uint32_t cookie = 0;
  TarnelResult result = factory->operations->CreateInstance(factory, NULL, &IID__clsTarnelOutWizard, (void**)&wizard);
  if (result < 0) return 1;
  wizard->operations->QueryInterface(wizard, &IID_TarnelConnectionPoints, (void**)&points);
  points->operations->FindConnectionPoint(points, &DIID___clsTarnelOutWizard, &point);
  point->operations->Advise(point, (TarnelObject*)&sink, &cookie);
  wizard->operations->QueryInterface(wizard, &IID_TarnelWizardControl, (void**)&control);
  if (script) control->operations->UseScript(control, 0, 1);

  snprintf(text, sizeof text, "Provider=Tarnel.Database;Data Source=\"%s\";", database);
  connection = tarnelText(text);
  result = wizard->operations->Setup(wizard, &appointments, &hours, &interval, &connection, NULL);
  if (result < 0) fprintf(stderr, "The wizard could not be opened: 0x%08X\n", (unsigned)result);

  point->operations->Unadvise(point, cookie);
  control->operations->Release(control);
  point->operations->Release(point);
  points->operations->Release(points);
  wizard->operations->Release(wizard);
  return result < 0;
}

int main(int argc, char** argv) {
  void* library = argc > 1 ? dlopen(argc > 3 ? argv[3] : "libTarnelOutWizard.so", RTLD_NOW) : NULL;
  TarnelGetClassObject classObject = NULL;
  TarnelClassFactory* factory = NULL;
  int failed;
  if (library) *(void**)&classObject = dlsym(library, "DllGetClassObject");
  if (!classObject || classObject(&CLSID_clsTarnelOutWizard, &IID_TarnelClassFactory, (void**)&factory) < 0) {
    fprintf(stderr, "%s\n", argc > 1 ? dlerror() : "usage: openWizard DATABASE [-|window [COMPONENT]]");
    return 2;
  }
  failed = openWizard(factory, argv[1], argc > 2 && strcmp(argv[2], "-") == 0);
  factory->operations->Release(factory);
  return failed;
}
