#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tavi {

/// Reads numbers from a span, the high byte first unless told otherwise. After a read beyond the end every value is 0,
/// and ok() is false.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::uint8_t> bytes, std::endian order = std::endian::big)
        : m_bytes(bytes), m_order(order) {}

    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return static_cast<std::uint32_t>(number(4)); }
    std::uint64_t u64() { return number(8); }
    /// A four-character code: its letters are in order whatever the order of bytes.
    std::uint32_t code() {
        const std::uint32_t value = u32();
        return m_order == std::endian::big ? value : __builtin_bswap32(value);
    }
    void skip(std::size_t count) { take(count); }
    /// The next count bytes.
    std::span<const std::uint8_t> take(std::size_t count) {
        m_ok = m_ok && count <= m_bytes.size();
        const auto taken = m_bytes.first(m_ok ? count : 0);
        m_bytes = m_bytes.subspan(taken.size());
        return taken;
    }
    std::span<const std::uint8_t> rest() const { return m_bytes; }
    bool ok() const { return m_ok; }

private:
    std::uint64_t number(std::size_t size) {
        const auto bytes = take(size);
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            value = value << 8 | bytes[m_order == std::endian::big ? i : size - 1 - i];
        }
        return value;
    }

    std::span<const std::uint8_t> m_bytes;
    std::endian m_order;
    bool m_ok = true;
};

/// The reverse: writes numbers one after the other.
class ByteWriter {
public:
    explicit ByteWriter(std::endian order = std::endian::big) : m_order(order) {}

    void u8(std::uint64_t value) { number(value, 1); }
    void u16(std::uint64_t value) { number(value, 2); }
    void u32(std::uint64_t value) { number(value, 4); }
    void u64(std::uint64_t value) { number(value, 8); }
    void code(std::uint32_t letters) { u32(m_order == std::endian::big ? letters : __builtin_bswap32(letters)); }
    void bytes(std::span<const std::uint8_t> data) { m_bytes.insert(m_bytes.end(), data.begin(), data.end()); }

    std::size_t size() const { return m_bytes.size(); }
    const std::vector<std::uint8_t>& data() const { return m_bytes; }
    std::vector<std::uint8_t> release() { return std::exchange(m_bytes, {}); }

protected:
    std::vector<std::uint8_t> m_bytes;

private:
    void number(std::uint64_t value, int size) {
        for (int i = 0; i < size; ++i) {
            const int shift = 8 * (m_order == std::endian::big ? size - 1 - i : i);
            m_bytes.push_back(static_cast<std::uint8_t>(value >> shift));
        }
    }

    std::endian m_order;
};

}  // namespace tavi
