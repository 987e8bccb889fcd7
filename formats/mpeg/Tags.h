#pragma once
// Metadata blocks at the start and end of an MPEG file. The finders only locate a tag and
// measure it; its contents are never read.
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

class CMPAStream;

class CTag {
 public:
  virtual ~CTag() = default;
  uint32_t GetOffset() const { return m_offset; }
  uint32_t GetSize() const { return m_size; }
  uint32_t GetEnd() const { return m_offset + m_size; }
  bool IsAppended() const { return m_appended; }
  float GetVersion() const { return m_version; }
  const QString& GetName() const { return m_name; }

 protected:
  CTag(CMPAStream* stream, const QString& name, bool appended, uint32_t offset = 0, uint32_t size = 0)
      : m_stream(stream), m_offset(offset), m_size(size), m_appended(appended), m_name(name) {}
  void SetVersion(uint32_t major, uint32_t minor = 0, uint32_t revision = 0) {
    m_version = float(major) + float(minor) * 0.1f + float(revision) * 0.01f;
  }

  CMPAStream* m_stream;
  uint32_t m_offset;
  uint32_t m_size;  // header and footer included
  bool m_appended;
  float m_version = 0.0f;
  QString m_name;
};

// Each finder looks at `begin` (a tag before the audio) or backwards from `end` (a tag
// behind it) and gives a new tag, or null. A tag whose claimed extent leaves the stream
// counts as not found.
class CID3V1Tag : public CTag {
 public:
  static CTag* FindTag(CMPAStream* stream, bool appended, uint32_t begin, uint32_t end);
 private:
  using CTag::CTag;
};

class CID3V2Tag : public CTag {
 public:
  static CTag* FindTag(CMPAStream* stream, bool appended, uint32_t begin, uint32_t end);
 private:
  using CTag::CTag;
};

class CAPETag : public CTag {
 public:
  static CTag* FindTag(CMPAStream* stream, bool appended, uint32_t begin, uint32_t end);
 private:
  using CTag::CTag;
};

class CLyrics3Tag : public CTag {
 public:
  // Throws CMPAException 10 for a version 1 end mark without its start mark.
  static CTag* FindTag(CMPAStream* stream, bool appended, uint32_t begin, uint32_t end);
 private:
  using CTag::CTag;
};

// All tags of one file, and the bounds of the audio between them.
class CTagList {
 public:
  explicit CTagList(CMPAStream* stream);
  uint32_t GetBegin() const { return m_begin; }
  uint32_t GetEnd() const { return m_end; }
  // The tag at `index` or null when past the end; `index` moves on in both cases.
  const CTag* GetNextTag(uint32_t& index) const;
  size_t Count() const { return m_tags.size(); }

 private:
  bool FindAppendedTag(CMPAStream* stream);
  bool FindPrependedTag(CMPAStream* stream);

  std::vector<std::unique_ptr<CTag>> m_tags;
  uint32_t m_begin = 0;
  uint32_t m_end = 0;
};
