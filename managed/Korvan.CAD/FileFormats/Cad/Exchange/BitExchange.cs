using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>
/// Carries the fields of an object as drawing databases pack them: out of the object, or into it. Each method takes the
/// present value and returns the one to keep, which is the same where the object is written. Data, strings and
/// references are streams of their own, so that only the order within each of them counts.
/// </summary>
internal abstract partial class BitExchange
{
    private DeclaredBits? _declared;

    /// <summary>Gets the release of the format, as a year.</summary>
    internal abstract int Release { get; }

    /// <summary>Gets whether the object takes values over.</summary>
    internal abstract bool IsReading { get; }

    /// <summary>Gets or sets whether data of the object is in the section of data, from release 2013 on.</summary>
    internal bool HasStoredData { get; set; }

    /// <summary>Gets the exchange for classes whose fields are in the order of their group codes.</summary>
    internal ObjectExchange Declared => _declared ??= new DeclaredBits(this);

    /// <summary>Carries one bit (B).</summary>
    internal abstract bool Bit(bool value);

    /// <summary>Carries two bits (BB).</summary>
    internal abstract int BitPair(int value);

    /// <summary>Carries an integer of 16 bits (BS).</summary>
    internal abstract int BitShort(int value);

    /// <summary>Carries an integer of 32 bits (BL).</summary>
    internal abstract int BitLong(int value);

    /// <summary>Carries an integer of up to 7 bytes (BLL).</summary>
    internal abstract long BitLongLong(long value);

    /// <summary>Carries a number (BD).</summary>
    internal abstract double BitDouble(double value);

    /// <summary>Carries a number by its difference from another one (DD).</summary>
    internal abstract double DoubleAfter(double value, double before);

    /// <summary>Carries a byte (RC).</summary>
    internal abstract int RawByte(int value);

    /// <summary>Carries two bytes (RS).</summary>
    internal abstract int RawShort(int value);

    /// <summary>Carries four bytes (RL).</summary>
    internal abstract int RawLong(int value);

    /// <summary>Carries a number of eight bytes (RD).</summary>
    internal abstract double RawDouble(double value);

    /// <summary>Carries bytes whose number has been carried before.</summary>
    internal abstract byte[] Bytes(byte[] value, int count);

    /// <summary>Carries a string (T).</summary>
    internal abstract string Text(string value);

    /// <summary>Carries a string among the data, after its length in bytes of 32 bits.</summary>
    internal abstract string CountedText(string value);

    /// <summary>Carries the reference to an object (H) as its handle in hexadecimal.</summary>
    internal abstract string Handle(HandleRole role, string value);

    /// <summary>Carries the reference to an object (H).</summary>
    internal abstract ulong Handle(HandleRole role, ulong value);

    /// <summary>Carries a handle among the data, which refers to nothing.</summary>
    internal abstract ulong PlainHandle(ulong value);

    /// <summary>Carries the reference to a record of a symbol table, which the object knows by its name.</summary>
    internal abstract string Name(SymbolTable table, string value);

    /// <summary>Returns the name of a record of a symbol table by its handle in hexadecimal; null for none.</summary>
    internal virtual string? FindName(string handle) => null;

    /// <summary>Returns the handle of a record of a symbol table in hexadecimal; "0" for none.</summary>
    internal virtual string FindHandle(SymbolTable table, string name) => "0";

    /// <summary>Carries a line type by its place in the table (BS), as styles of multilines have it up to release
    /// 2013.</summary>
    internal abstract string LineTypeByIndex(string value);

    /// <summary>Carries a colour (CMC).</summary>
    /// <param name="index">The index of the colour.</param>
    /// <param name="rgb">The colour as 0xRRGGBB; -1 for none.</param>
    /// <param name="name">The name in a book of colours, as <c>BOOK$COLOUR</c>; empty for none.</param>
    internal abstract (int Index, int Rgb, string Name) Color(int index, int rgb, string name);

    /// <summary>Carries a colour as releases from 2004 on have it, whatever the release is (TC).</summary>
    internal abstract (int Index, int Rgb, string Name) TrueColor(int index, int rgb, string name);

    /// <summary>Determines whether an object is there, which an entry refers to.</summary>
    internal virtual bool IsPresent(ulong handle) => true;

    /// <summary>Carries how many items follow; the object has at least a bit for each.</summary>
    /// <param name="count">The number as it was read or is written.</param>
    internal abstract int Verify(int count);

    /// <summary>Carries the number of parts of an object, which releases from 2004 on state among its data.</summary>
    /// <param name="hasParts">Whether it can have any.</param>
    internal abstract void ChildCount(bool hasParts);

    /// <summary>Carries the references from an object to its parts, vertices or attributes, and to what ends
    /// them.</summary>
    internal abstract void Children(CadBaseObject owner);

    /// <summary>Carries the references from a block to what begins and ends it, and to its entities.</summary>
    internal abstract void BlockParts(CadBaseObject owner, bool hasEntities);

    /// <summary>Carries values after their group codes, whose number of bytes precedes them.</summary>
    /// <param name="record">The object with the values.</param>
    /// <param name="cloningCode">The group code under which the object has its cloning flag.</param>
    internal abstract void TypedTags(CadXRecord record, int cloningCode);

    /// <summary>Creates the exception for a value that the class does not allow.</summary>
    internal abstract System.Exception Fault(string cause);

    /// <summary>Gets how many bits of the data stream are left; 0 where the object is written.</summary>
    internal virtual long DataRemaining => 0;

    /// <summary>Gets whether fields follow that some programs leave out at the end of an object.</summary>
    internal bool HasMore => !IsReading || DataRemaining > 0;

    /// <summary>Carries all bits of the data stream that are left, and how many they are.</summary>
    internal abstract byte[] Rest(byte[] value, ref int bits);

    /// <summary>Carries bytes up to the end of one of several strings.</summary>
    internal abstract byte[] BytesUpTo(byte[] value, params byte[][] ends);

    /// <summary>Carries a colour of which an object has the packed value: kind in the highest byte.</summary>
    internal abstract int PackedColor(int value);

    /// <summary>Carries whether an attribute has several lines, and then the text with them.</summary>
    /// <param name="attribute">The attribute.</param>
    /// <param name="kind">The number for several lines.</param>
    internal abstract void AttributeKind(CadText attribute, int kind);

    /// <summary>Carries the references that are left, with group codes.</summary>
    internal abstract void RestOfHandles(System.Collections.Generic.IList<CadCodeValue> handles);
}
