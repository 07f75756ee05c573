#include "device/CeRuntime.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <utility>
#include <vector>

namespace barhatch::device {

namespace {

constexpr std::uint32_t kFirstStream =
    0x7E000001;  // no address: nobody but the runtime looks inside

using Bytes = std::vector<std::uint8_t>;

CeMachine::HostFunction Allocation(Form form) {
  return [form](CeMachine& m) { m.SetResult(m.Heap().Allocate(m.Argument(0), form)); };
}

CeMachine::HostFunction Release(Form form) {
  return [form](CeMachine& m) {
    const std::uint32_t address = m.Argument(0);
    if (address != 0 && !m.Heap().Release(address, form)) {
      throw DeviceFault("released what is not alive, or in another form than it was allocated in");
    }
  };
}

void Move(CeMachine& m) {
  Bytes bytes(m.Argument(2));
  m.Read(m.Argument(1), bytes.data(), bytes.size());
  m.Write(m.Argument(0), bytes.data(), bytes.size());
}

void Copy(CeMachine& m) {
  const std::uint32_t to = m.Argument(0);
  const std::uint32_t from = m.Argument(1);
  const std::uint32_t size = m.Argument(2);
  if (to < from + size && from < to + size) throw DeviceFault("the blocks overlap");
  Move(m);
}

void Fill(CeMachine& m) {
  const Bytes bytes(m.Argument(2), static_cast<std::uint8_t>(m.Argument(1)));
  m.Write(m.Argument(0), bytes.data(), bytes.size());
}

void Compare(CeMachine& m) {
  Bytes first(m.Argument(2));
  Bytes second(m.Argument(2));
  m.Read(m.Argument(0), first.data(), first.size());
  m.Read(m.Argument(1), second.data(), second.size());
  const int order = first.empty() ? 0 : std::memcmp(first.data(), second.data(), first.size());
  m.SetResult(static_cast<std::uint32_t>(order));
}

// 16-bit text as the runtime writes it to an 8-bit stream: one byte for each unit.
std::string ReadWideText(CeMachine& m, std::uint32_t address) {
  std::string text;
  for (;; address += 2) {
    std::uint16_t unit = 0;
    m.Read(address, &unit, sizeof unit);
    if (unit == 0) return text;
    text += unit < 256 ? static_cast<char>(unit) : '?';
  }
}

std::string FormatDouble(double value) {
  std::string text(400, '\0');  // the longest double has 309 digits before the point
  text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%f", value)));
  return text;
}

}  // namespace

std::string Format(CeMachine& machine, const std::string& format, std::uint32_t first) {
  std::string text;
  std::uint32_t argument = first;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != '%') {
      text += format[i];
    } else if (format.compare(i, 2, "%d") == 0) {
      text += std::to_string(static_cast<std::int32_t>(machine.Argument(argument++)));
      i += 1;
    } else if (format.compare(i, 2, "%s") == 0) {
      text += machine.ReadText(machine.Argument(argument++));
      i += 1;
    } else if (format.compare(i, 2, "%f") == 0) {
      text += FormatDouble(machine.DoubleArgument(argument));
      argument += 2;
      i += 1;
    } else if (format.compare(i, 3, "%ls") == 0) {
      text += ReadWideText(machine, machine.Argument(argument++));
      i += 2;
    } else {
      throw DeviceFault("format " + format);
    }
  }
  return text;
}

CeRuntime::CeRuntime(CeMachine& machine) : machine_(machine) {
  BindMemory();
  BindBlocks();
  BindStreams();
}

void CeRuntime::Bind(const std::string& name, CeMachine::HostFunction function) {
  functions_[name] = machine_.Bind(name, std::move(function));
}

void CeRuntime::BindMemory() {
  Bind("??2@YAPAXI@Z", Allocation(Form::kScalar));
  Bind("??_U@YAPAXI@Z", Allocation(Form::kArray));
  Bind("malloc", Allocation(Form::kMalloc));
  Bind("??3@YAXPAX@Z", Release(Form::kScalar));
  Bind("??_V@YAXPAX@Z", Release(Form::kArray));
  Bind("free", Release(Form::kMalloc));
}

void CeRuntime::BindBlocks() {
  Bind("memset", Fill);
  Bind("memcpy", Copy);
  Bind("memmove", Move);
  Bind("memcmp", Compare);
  Bind("strlen", [](CeMachine& m) {
    m.SetResult(static_cast<std::uint32_t>(m.ReadText(m.Argument(0)).size()));
  });
  Bind("ceil", [](CeMachine& m) { m.SetResult(std::ceil(m.DoubleArgument(0))); });
}

void CeRuntime::BindStreams() {
  Bind("fprintf", [this](CeMachine& m) {
    const std::string text = Format(m, m.ReadText(m.Argument(1)), 2);
    Stream& stream = OpenStreamAt(m.Argument(0));
    stream.text += text;
    stream.isFlushed = false;
    m.SetResult(static_cast<std::uint32_t>(text.size()));
  });
  Bind("fflush", [this](CeMachine& m) {
    OpenStreamAt(m.Argument(0)).isFlushed = true;
    m.SetResult(0U);
  });
  Bind("fclose", [this](CeMachine& m) {
    OpenStreamAt(m.Argument(0)).isOpen = false;
    m.SetResult(0U);
  });
  Bind("puts", [this](CeMachine& m) {
    console_ += m.ReadText(m.Argument(0)) + '\n';
    m.SetResult(0U);
  });
}

std::uint32_t CeRuntime::Resolve(const PeImage::Import& import) const {
  const auto function = functions_.find(import.name);
  if (import.library != "coredll.dll" || function == functions_.end()) {
    throw DeviceFault("the model has no " + import.library + "!" + import.name);
  }
  return function->second;
}

std::uint32_t CeRuntime::OpenStream() {
  const std::uint32_t handle = kFirstStream + 4 * static_cast<std::uint32_t>(streams_.size());
  streams_[handle] = {"", true, true};
  return handle;
}

CeRuntime::Stream& CeRuntime::OpenStreamAt(std::uint32_t handle) {
  const auto stream = streams_.find(handle);
  if (stream == streams_.end() || !stream->second.isOpen) throw DeviceFault("no open stream");
  return stream->second;
}

}  // namespace barhatch::device
