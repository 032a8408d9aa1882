#ifndef TARNEL_OUT_WIZARD_H
#define TARNEL_OUT_WIZARD_H

/*
 * The component TarnelOutWizard as its hosts see it, from C and from C++. libTarnelOutWizard.so exports four functions;
 * DllGetClassObject gives the factory of the one class, clsTarnelOutWizard, and everything else is reached from there.
 * TarnelOutWizard.idl describes the same.
 *
 * An interface is a pointer to a pointer to a table of functions, which C sees as it is and C++ as an abstract class:
 *     wizard->operations->Setup(wizard, ...)        in C
 *     wizard->Setup(...)                            in C++
 *
 * - Nothing is thrown across the boundary. Each operation gives a TarnelResult; negative ones are failures, and what an
 *   operation would have given back is then empty. What a handler of the host throws counts as its failure.
 * - Objects are counted: whoever gets an interface pointer owns one reference and gives it back with Release. The
 *   component takes its own references for what it keeps.
 * - An object works on the thread that made it. Events are calls from within Setup, on that thread.
 * - The library stays in memory once it was loaded, so that dlclose does no harm while objects live.
 */

#include <stdint.h>
#include <stdlib.h>
#include <string.h>

/* ---- values ---- */

typedef int32_t TarnelResult;

#define TARNEL_OK ((TarnelResult)0)
#define TARNEL_FALSE ((TarnelResult)1) /* done, and the answer is no */
#define TARNEL_OUT_OF_MEMORY ((TarnelResult)0x8007000Eu)
#define TARNEL_NULL_POINTER ((TarnelResult)0x80004003u)
#define TARNEL_INVALID_ARGUMENT ((TarnelResult)0x80070057u)
#define TARNEL_NO_INTERFACE ((TarnelResult)0x80004002u)
#define TARNEL_NO_CLASS ((TarnelResult)0x80040111u)
#define TARNEL_NO_AGGREGATION ((TarnelResult)0x80040110u)
#define TARNEL_NO_CONNECTION ((TarnelResult)0x80040200u)  /* no such sink is connected */
#define TARNEL_CANT_CONNECT ((TarnelResult)0x80040202u)   /* the sink takes no events of this class */
#define TARNEL_NOT_REGISTERED ((TarnelResult)0x80040201u) /* the user's registry can't be written */
#define TARNEL_WRONG_THREAD ((TarnelResult)0x8001010Eu)
#define TARNEL_BUSY ((TarnelResult)0x8001010Au) /* not while a wizard is open on this thread */
#define TARNEL_NO_WIZARD                                                                       \
  ((TarnelResult)0x8000FFFFu) /* only from within an event, while this object's wizard is open \
                               */
#define TARNEL_FAILED ((TarnelResult)0x80004005u)
/* A failure with a number of its own, 1 to 65535, such as 53 when no screen can be reached. */
#define TARNEL_FAILURE(number) ((TarnelResult)(0x800A0000u | (uint32_t)(number)))

typedef int16_t TarnelBool; /* TARNEL_NO, or any other value for yes; the component gives TARNEL_YES */
#define TARNEL_NO ((TarnelBool)0)
#define TARNEL_YES ((TarnelBool)-1)

/* Days since 1899-12-30, the time as a fraction. */
typedef double TarnelDate;

typedef struct TarnelGuid {
  uint32_t data1;
  uint16_t data2;
  uint16_t data3;
  uint8_t data4[8];
} TarnelGuid;

/*
 * A text in UTF-8 without null characters; `length` counts bytes, and no null need follow them. An argument is
 * the caller's and is read during the call. A text that is handed back, or that the other side may replace, is
 * malloc's: who takes it, or puts another in its place, frees it. The empty text may have no bytes at all.
 */
typedef struct TarnelText {
  char* bytes;
  uint32_t length;
} TarnelText;

/* What a TarnelVariant holds. TARNEL_BY_REFERENCE is added where it points at the value. */
enum {
  TARNEL_EMPTY = 0,
  TARNEL_NULL = 1,
  TARNEL_INT32 = 3,
  TARNEL_TEXT = 8,
  TARNEL_VARIANT = 12,
  TARNEL_BY_REFERENCE = 0x4000
};

typedef struct TarnelVariant {
  uint16_t kind;
  uint16_t reserved[3];
  union {
    int32_t int32;
    TarnelText text;
    int32_t* int32Reference;
    struct TarnelVariant* variantReference;
  } value;
} TarnelVariant;

/* ---- how interfaces are written down ---- */

/* clang-format off */

#ifdef __cplusplus

struct TarnelObject {
  virtual TarnelResult QueryInterface(const TarnelGuid* id, void** object) = 0;
  virtual uint32_t AddRef() = 0;
  virtual uint32_t Release() = 0;

 protected:
  ~TarnelObject() = default;
};
#define TARNEL_INTERFACE(Name) struct Name : TarnelObject {
#define TARNEL_OPERATION(Name, Operation) virtual TarnelResult Operation() = 0;
#define TARNEL_OPERATION_WITH(Name, Operation, ...) virtual TarnelResult Operation(__VA_ARGS__) = 0;
#define TARNEL_END(Name) \
 protected:              \
  ~Name() = default;     \
  }                      \
  ;

#else

#define TARNEL_INTERFACE(Name)                                                       \
  typedef struct Name Name;                                                          \
  typedef struct Name##Operations {                                                  \
    TarnelResult (*QueryInterface)(Name * self, const TarnelGuid* id, void** object); \
    uint32_t (*AddRef)(Name * self);                                                 \
    uint32_t (*Release)(Name * self);
#define TARNEL_OPERATION(Name, Operation) TarnelResult (*Operation)(Name * self);
#define TARNEL_OPERATION_WITH(Name, Operation, ...) TarnelResult (*Operation)(Name * self, __VA_ARGS__);
#define TARNEL_END(Name)             \
  }                                  \
  Name##Operations;                  \
  struct Name {                      \
    const Name##Operations* operations; \
  };
TARNEL_INTERFACE(TarnelObject)
TARNEL_END(TarnelObject)

#endif

/* ---- identifiers ---- */

#ifdef __cplusplus
#define TARNEL_ID inline constexpr TarnelGuid
#else
#define TARNEL_ID static const TarnelGuid
#endif

TARNEL_ID CLSID_clsTarnelOutWizard = {0x80cbb0d3, 0x2178, 0x4bda, {0xba, 0xfa, 0xbc, 0x48, 0x78, 0x04, 0xca, 0x1c}};
TARNEL_ID LIBID_TarnelOutWizard = {0xe42715c9, 0xf127, 0x4550, {0x93, 0xb6, 0x56, 0xf9, 0x31, 0xb3, 0xf8, 0x78}};
TARNEL_ID IID_TarnelObject = {0x8d604797, 0x723e, 0x4c0f, {0xac, 0x29, 0x37, 0x5a, 0x04, 0x99, 0x6d, 0xda}};
TARNEL_ID IID_TarnelClassFactory = {0x79819fb1, 0x885c, 0x4351, {0x98, 0xf7, 0x6d, 0x8b, 0x55, 0xce, 0xda, 0xf8}};
TARNEL_ID IID_TarnelConnectionPoints = {0x006fe9f3, 0x9fd4, 0x4f61, {0xb3, 0x36, 0xf2, 0x53, 0x62, 0x6f, 0x68, 0xb1}};
TARNEL_ID IID_TarnelConnectionPoint = {0x035a3609, 0x1e74, 0x4f27, {0xb5, 0x2c, 0x64, 0x32, 0x1e, 0xc7, 0x3f, 0x60}};
TARNEL_ID IID__clsTarnelOutWizard = {0x9d87b811, 0x06e2, 0x4af6, {0x9d, 0x87, 0x3d, 0x72, 0x7b, 0x12, 0xc5, 0x68}};
TARNEL_ID DIID___clsTarnelOutWizard = {0x430dfe9e, 0x1b32, 0x457a, {0xbf, 0x5f, 0x39, 0x8c, 0x13, 0x77, 0x53, 0x90}};
TARNEL_ID IID_TarnelWizardControl = {0xd520db91, 0xc43c, 0x44a8, {0xae, 0xa9, 0x46, 0x6b, 0x1b, 0x53, 0x59, 0x2e}};

/* ---- interfaces ---- */

/* Makes objects of the class. */
TARNEL_INTERFACE(TarnelClassFactory)
  /* `outer` must be null: TARNEL_NO_AGGREGATION. */
  TARNEL_OPERATION_WITH(TarnelClassFactory, CreateInstance, TarnelObject* outer, const TarnelGuid* id, void** object)
  /* While it is locked as often as it was not unlocked, DllCanUnloadNow answers no. */
  TARNEL_OPERATION_WITH(TarnelClassFactory, LockServer, TarnelBool lock)
TARNEL_END(TarnelClassFactory)

/*
 * Events, each by its number, in the order of the class's outgoing interface. All but the last come without arguments.
 * A handler that fails ends the wizard with a report; TarnelWizardControl can be told why before.
 */
enum {
  TARNEL_CLOSE_THE_WIZARD = 1,             /* the wizard has closed */
  TARNEL_OUTLOOK_PREFS_CHANGED = 2,        /* a transition of the modes ran */
  TARNEL_IMPORT_FROM_OUTLOOK = 3,          /* import the tasks from Outlook now */
  TARNEL_TURN_ON_OUTLOOK_CURRENT_TASKS = 4,  /* from now on the Current list is kept in Outlook */
  TARNEL_TURN_OFF_OUTLOOK_CURRENT_TASKS = 5, /* no longer */
  TARNEL_MOP_KILLED = 6,                   /* the Outlook Tasks Project was given up */
  /*
   * The user pressed the update button, before any transition runs. Three arguments: newTask and newAppt, TARNEL_INT32
   * by reference, 0 to 3, and newProfile, TARNEL_VARIANT by reference to a TARNEL_TEXT, the name as the settings hold
   * it. The text that a handler puts into newProfile becomes the wizard's profile. The modes only tell: the wizard reads
   * them off its settings again, and another number in their place reaches the later sinks and nobody else.
   */
  TARNEL_UPDATE_OUTLOOK_SETTINGS = 7
};

/* The host implements this one. `arguments` are in the order in which they are described above. */
TARNEL_INTERFACE(__clsTarnelOutWizard)
  TARNEL_OPERATION_WITH(__clsTarnelOutWizard, Invoke, int32_t event, TarnelVariant* arguments, uint32_t count)
TARNEL_END(__clsTarnelOutWizard)

/* Takes sinks; each gets every event, in the order of connecting. */
TARNEL_INTERFACE(TarnelConnectionPoint)
  /* `sink` must answer to DIID___clsTarnelOutWizard: TARNEL_CANT_CONNECT. `cookie` is never 0. */
  TARNEL_OPERATION_WITH(TarnelConnectionPoint, Advise, TarnelObject* sink, uint32_t* cookie)
  /* Also from within an event: the sink gets none from then on. */
  TARNEL_OPERATION_WITH(TarnelConnectionPoint, Unadvise, uint32_t cookie)
TARNEL_END(TarnelConnectionPoint)

/* The class's outgoing interfaces: there is one, DIID___clsTarnelOutWizard; for any other TARNEL_NO_CONNECTION. */
TARNEL_INTERFACE(TarnelConnectionPoints)
  TARNEL_OPERATION_WITH(TarnelConnectionPoints, FindConnectionPoint, const TarnelGuid* events,
                        TarnelConnectionPoint** point)
TARNEL_END(TarnelConnectionPoints)

/* The class's default interface. */
TARNEL_INTERFACE(_clsTarnelOutWizard)
  /* Keeps the settings that help topics are printed with; `result`, which may be null, is always yes. */
  TARNEL_OPERATION_WITH(_clsTarnelOutWizard, SetTaskPrintSetting, const TarnelText* str, TarnelBool* result)
  /*
   * Opens the wizard and returns when it has gone. `curDoingAppts`: it opens on the Appointments tab. `theTimeDisplay1`
   * is "ALL" or "DAY", `theTimeDisplay2` one of "M60", "M30", "M20", "M15", "M10", "M5" and "M1". `theszConnect` names
   * the task database: "Provider=Tarnel.Database;Data Source=\"/path/to/tasks.db\";". `CurDate` is the day to show;
   * null, or a day up to 1000, means today, and 9999-12-31 is refused: TARNEL_INVALID_ARGUMENT. Pass a whole number:
   * with a time of day the Task Appointments before that time are not shown, until the user chooses a day. TARNEL_BUSY
   * while a wizard is open on this thread. A failure that ends the wizard is told to the user and is none of this call:
   * see FirstFailure.
   */
  TARNEL_OPERATION_WITH(_clsTarnelOutWizard, Setup, const TarnelBool* curDoingAppts, const TarnelText* theTimeDisplay1,
                        const TarnelText* theTimeDisplay2, const TarnelText* theszConnect, const TarnelDate* CurDate)
TARNEL_END(_clsTarnelOutWizard)

/* What an object of the class can do beyond that, for hosts that want it. None of it is needed. */
TARNEL_INTERFACE(TarnelWizardControl)
  /* How the next wizards show themselves: TARNEL_BUSY for these while one is open. A window is what they are without. */
  TARNEL_OPERATION(TarnelWizardControl, UseWindow)
  /*
   * No screen: commands, one a line, from one file descriptor; facts, one JSON object a line, to another. The end of
   * the commands closes the wizard; one that ends before leaves the rest to the next. Both stay the host's and open.
   */
  TARNEL_OPERATION_WITH(TarnelWizardControl, UseScript, int32_t commands, int32_t facts)
  /*
   * No screen and no user: a picture of each tab goes into a folder, which is made. `scale` is pixels to one of a plain
   * screen, 1 to 4. What boxes would say is written to the file descriptor `told`.
   */
  TARNEL_OPERATION_WITH(TarnelWizardControl, UsePictures, const TarnelText* folder, double scale, TarnelBool dark,
                        int32_t told)
  /* This file is Outlook's mailbox whatever profile is chosen; with an empty text it is the profile's own again. */
  TARNEL_OPERATION_WITH(TarnelWizardControl, UseMailbox, const TarnelText* file)
  /*
   * Why the last Setup, or what was called since, failed: the first failure, the others mostly follow from it.
   * TARNEL_FALSE and an empty text when there was none. The caller frees the text.
   */
  TARNEL_OPERATION_WITH(TarnelWizardControl, FirstFailure, TarnelText* text)
  /* For a handler that is about to fail: the number and the words to report. */
  TARNEL_OPERATION_WITH(TarnelWizardControl, ExplainFailure, int32_t number, const TarnelText* text)
  /*
   * For handlers: puts the open tasks of the Current list into Outlook, but for those that are done there, and takes
   * the open Outlook tasks that are linked to no task into the Outlook Tasks Project. The user is told the counts.
   * TARNEL_FALSE when it did not come to its end, of which the user was told, too.
   */
  TARNEL_OPERATION(TarnelWizardControl, CopyCurrentTasks)
  TARNEL_OPERATION(TarnelWizardControl, ImportOutlookTasks)
  /* For handlers: shows the user a box with this text and returns when it was read. */
  TARNEL_OPERATION_WITH(TarnelWizardControl, TellUser, const TarnelText* text)
  /* For handlers: puts the Task Appointments from today on into Outlook's calendar. Answers as the two above. */
  TARNEL_OPERATION(TarnelWizardControl, CopyTaskAppointments)
  /*
   * What the next calls of Setup do before the wizard opens, without telling counts: CopyCurrentTasks, and
   * CopyTaskAppointments. A failure is reported, and the wizard opens all the same. Without this neither is done.
   */
  TARNEL_OPERATION_WITH(TarnelWizardControl, CopyAtStart, TarnelBool currentTasks, TarnelBool taskAppointments)
TARNEL_END(TarnelWizardControl)

/* clang-format on */

/* ---- the library's functions ---- */

#define TARNEL_EXPORT __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* TARNEL_OK when no object lives and no factory is locked, else TARNEL_FALSE. */
TARNEL_EXPORT TarnelResult DllCanUnloadNow(void);
/* The factory of CLSID_clsTarnelOutWizard as IID_TarnelClassFactory; for another class TARNEL_NO_CLASS. */
TARNEL_EXPORT TarnelResult DllGetClassObject(const TarnelGuid* classId, const TarnelGuid* id, void** object);
/* Writes where the class is into the user's registry, and takes it away again. Both may be called twice. */
TARNEL_EXPORT TarnelResult DllRegisterServer(void);
TARNEL_EXPORT TarnelResult DllUnregisterServer(void);

/* DllGetClassObject as dlsym gives it. */
typedef TarnelResult (*TarnelGetClassObject)(const TarnelGuid* classId, const TarnelGuid* id, void** object);

#ifdef __cplusplus
}
#endif

/* ---- for convenience ---- */

/* A text over characters that stay the caller's. */
static inline TarnelText tarnelText(const char* characters) {
  TarnelText text;
  text.bytes = (char*)characters;
  text.length = (uint32_t)strlen(characters);
  return text;
}

/* An event's name as TarnelOutWizard.idl has it, without its arguments; "" for a number that is no event's. */
static inline const char* tarnelEventName(int32_t event) {
  static const char* const names[] = {"",
                                      "CloseTheWizard",
                                      "OutlookPrefsChanged",
                                      "ImportFromOutlook",
                                      "TurnOnOutlookCurrentTasks",
                                      "TurnOffOutlookCurrentTasks",
                                      "MOPKilled",
                                      "UpdateOutlookSettings"};
  return event >= TARNEL_CLOSE_THE_WIZARD && event <= TARNEL_UPDATE_OUTLOOK_SETTINGS ? names[event] : "";
}

/* Puts a copy in the place of the text that is there, as in newProfile. TARNEL_OUT_OF_MEMORY: nothing was changed. */
static inline TarnelResult tarnelReplaceText(TarnelText* text, const char* characters) {
  size_t length = strlen(characters);
  char* copy = (char*)malloc(length + 1);
  if (!copy) return TARNEL_OUT_OF_MEMORY;
  memcpy(copy, characters, length + 1);
  free(text->bytes);
  text->bytes = copy;
  text->length = (uint32_t)length;
  return TARNEL_OK;
}

#undef TARNEL_INTERFACE
#undef TARNEL_OPERATION
#undef TARNEL_OPERATION_WITH
#undef TARNEL_END
#undef TARNEL_ID

#endif
