#pragma once

#include "store/RecordClass.h"

/// The garments that sizes are kept of, in the order of their error numbers.
enum class Garment { Pant, Shirt, Hat, Socks, Shoe };

/// One size of one garment: a short designator ("YL") and its description ("Youth Large"), by which it is found again.
class UniformSize final : public RecordClass {
public:
    UniformSize(StoreContext& context, Garment garment);

    Text Size;
    Text SizeText;
    Stamps SizeStamps{this};

    void SizeMove(int code) { move(code); }
    void SaveSizeRecord() { save(); }
    void SaveSizeMergeRecord() { saveMerge(); }
    bool IsSizeValid(bool showError) const { return isValid(showError); }
    void UndoSizeRecord() { undo(); }
    void NewSizeRecord() { newRecord(); }
    void DeleteSizeRecord() { deleteRecord(); }
    void SetIsSizeDirty(bool dirty) { setDirty(dirty); }
    void SetIsSizeNew(bool isNew) { setNew(isNew); }
    bool FindSizeRecord(const QString& text, bool show, bool load) { return findByName(text, show, load); }
    bool FindSizeMergeRecord(const QString& text, bool show, bool load) { return findAnyByName(text, show, load); }
    bool FindDeletedSizeRecord(const QString& text) { return findDeletedByName(text); }
};

/// The sizes of all garments: uniform.HatSize.FindSizeRecord("Youth", ...).
class clsUniform final {
public:
    explicit clsUniform(StoreContext& context)
        : PantSize(context, Garment::Pant),
          ShirtSize(context, Garment::Shirt),
          HatSize(context, Garment::Hat),
          SocksSize(context, Garment::Socks),
          ShoeSize(context, Garment::Shoe) {}

    UniformSize PantSize;
    UniformSize ShirtSize;
    UniformSize HatSize;
    UniformSize SocksSize;
    UniformSize ShoeSize;
};
