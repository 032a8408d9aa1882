#include "Recordset.h"

#include <algorithm>

#include "Failure.h"
#include "RowFilter.h"
#include "RowStore.h"
#include "RowView.h"
#include "SortOrder.h"

namespace tarnel::ado {

struct Recordset::Impl {
  CursorType type = CursorType::forwardOnly;
  LockType lock = LockType::readOnly;

  bool isOpen = false;
  std::shared_ptr<Session> session;
  std::string statement;
  RowStore rows;
  RowFilter filter;
  SortOrder sort;
  RowView view;
  std::size_t position = 0;  // into the view; its size means the end

  void mustBeOpen() const {
    if (!isOpen) throw Failure(failure::objectClosed, "Operation is not allowed when the object is closed.");
  }
  void mustBeClosed() const {
    if (isOpen) throw Failure(failure::objectOpen, "Operation is not allowed when the object is open.");
  }
  void mustBeConnected() const {
    if (!session) failNotConnected();
  }
  void mustBeUpdatable() const {
    if (lock == LockType::readOnly || rows.result().table.empty())
      throw Failure(failure::notSupported,
                    "Current Recordset does not support updating. This may be a limitation of the provider, or of the "
                    "selected locktype.");
  }
  bool writesAtOnce() const { return lock != LockType::batchOptimistic; }
  bool atEnd() const { return position >= view.size(); }

  std::size_t currentRow() const {
    mustBeOpen();
    if (atEnd())
      throw Failure(failure::noCurrentRecord,
                    "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
                    "current record.");
    return view.rowAt(position);
  }

  void show() {
    view = RowView(rows, filter, sort);
    position = 0;
  }

  void write(const std::vector<std::size_t>& pending) {
    if (pending.empty()) return;
    mustBeConnected();
    rows.settle(pending, session->write(rows.result(), rows.changesOf(pending)));
  }

  // Leaving a row ends its editing.
  void leaveRow() {
    if (writesAtOnce() && !atEnd() && rows.isPending(currentRow())) write({currentRow()});
  }

  std::size_t firstPosition(const std::vector<std::size_t>& candidates) const {
    std::size_t first = view.size();
    for (const std::size_t row : candidates)
      if (const auto at = view.positionOf(row)) first = std::min(first, *at);
    return first;
  }
};

const std::string& Field::Name() const { return owner_->impl_->rows.column(column_).name; }

const Variant& Field::Value() const {
  const Recordset::Impl& impl = *owner_->impl_;
  return impl.rows.shownValue(impl.currentRow(), column_);
}

void Field::setValue(const Variant& value) {
  Recordset::Impl& impl = *owner_->impl_;
  const std::size_t row = impl.currentRow();
  impl.mustBeUpdatable();
  impl.rows.set(row, column_, value);
}

Recordset::Recordset() : impl_(std::make_unique<Impl>()) {}
Recordset::~Recordset() = default;

void Recordset::setCursorLocation(CursorLocation /*location*/) { impl_->mustBeClosed(); }

void Recordset::setCursorType(CursorType type) {
  impl_->mustBeClosed();
  impl_->type = type;
}

void Recordset::setLockType(LockType type) {
  impl_->mustBeClosed();
  impl_->lock = type;
}

CursorType Recordset::cursorType() const { return impl_->type; }
LockType Recordset::lockType() const { return impl_->lock; }

void Recordset::Open(Provider& provider, std::string statement, const std::string& connectionString, CursorType type,
                     LockType lock, CommandType /*command*/) {
  impl_->mustBeClosed();
  auto session = connect(provider, connectionString);
  RowStore rows(session->query(statement));
  if (type != CursorType::unspecified) impl_->type = type;
  if (lock != LockType::unspecified) impl_->lock = lock;
  impl_->session = std::move(session);
  impl_->statement = std::move(statement);
  impl_->rows = std::move(rows);
  impl_->isOpen = true;
  impl_->show();
}

void Recordset::disconnect() {
  impl_->mustBeOpen();
  impl_->session.reset();
}

void Recordset::Close() {
  impl_->mustBeOpen();
  auto closed = std::make_unique<Impl>();
  closed->type = impl_->type;
  closed->lock = impl_->lock;
  impl_ = std::move(closed);
}

State Recordset::state() const { return impl_->isOpen ? State::open : State::closed; }

bool Recordset::atBOF() const {
  impl_->mustBeOpen();
  return impl_->view.size() == 0;
}

bool Recordset::atEOF() const {
  impl_->mustBeOpen();
  return impl_->atEnd();
}

std::int32_t Recordset::RecordCount() const {
  impl_->mustBeOpen();
  return static_cast<std::int32_t>(impl_->view.size());
}

std::int32_t Recordset::AbsolutePosition() const {
  constexpr std::int32_t behindTheLast = -3;  // adPosEOF
  impl_->mustBeOpen();
  return impl_->atEnd() ? behindTheLast : static_cast<std::int32_t>(impl_->position + 1);
}

void Recordset::MoveFirst() {
  impl_->mustBeOpen();
  impl_->leaveRow();
  impl_->position = 0;
  impl_->currentRow();
}

void Recordset::MoveNext() {
  impl_->currentRow();
  impl_->leaveRow();
  ++impl_->position;
}

void Recordset::Find(std::string_view column, const Variant& value) {
  impl_->mustBeOpen();
  impl_->leaveRow();
  impl_->position = impl_->firstPosition(impl_->rows.rowsEqual(impl_->rows.columnNamed(column), value));
}

Field Recordset::Fields(std::string_view name) {
  impl_->mustBeOpen();
  return {*this, impl_->rows.columnNamed(name)};
}

Field Recordset::Fields(std::size_t index) {
  if (index >= fieldCount()) failNoSuchItem(std::to_string(index));
  return {*this, index};
}

std::size_t Recordset::fieldCount() const {
  impl_->mustBeOpen();
  return impl_->rows.columnCount();
}

void Recordset::AddNew() {
  impl_->mustBeOpen();
  impl_->mustBeUpdatable();
  impl_->leaveRow();
  impl_->view.append(impl_->rows.append());
  impl_->position = impl_->view.size() - 1;
}

void Recordset::Update() {
  impl_->currentRow();
  impl_->mustBeUpdatable();
  impl_->leaveRow();
}

void Recordset::UpdateBatch(Affect /*affect*/) {
  impl_->mustBeOpen();
  impl_->write(impl_->rows.pendingRows());
}

void Recordset::CancelBatch() {
  impl_->mustBeOpen();
  impl_->rows.cancel();
  impl_->view.cutTo(impl_->rows.rowCount());
}

void Recordset::Requery(std::int32_t /*options*/) {
  impl_->mustBeOpen();
  impl_->mustBeConnected();
  impl_->rows = RowStore(impl_->session->query(impl_->statement));
  impl_->show();
}

void Recordset::Resync(Affect /*affect*/, ResyncValues values) {
  impl_->mustBeOpen();
  impl_->mustBeConnected();
  impl_->mustBeUpdatable();
  RowStore& rows = impl_->rows;
  const std::vector<std::size_t> stored = rows.storedRows();
  const auto present = impl_->session->reread(rows.result(), rows.identitiesOf(stored));
  for (std::size_t i = 0; i < stored.size(); ++i)
    if (present[i]) rows.refresh(stored[i], *present[i], values == ResyncValues::underlying);
}

void Recordset::setSort(std::string_view columns) {
  impl_->mustBeOpen();
  impl_->leaveRow();
  impl_->sort = SortOrder(columns, impl_->rows);
  impl_->show();
}

void Recordset::setFilter(std::string_view criterion) {
  impl_->mustBeOpen();
  impl_->leaveRow();
  impl_->filter = RowFilter(criterion, impl_->rows);
  impl_->show();
}

}  // namespace tarnel::ado
