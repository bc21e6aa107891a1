namespace Korvan.WrpGen.Model;

/// <summary>How values of one managed type cross the boundary.</summary>
public enum ValueKind
{
    Void,
    Bool,
    SByte,
    Byte,
    Int16,
    UInt16,
    Int32,
    UInt32,
    Int64,
    UInt64,
    Single,
    Double,
    Char,
    String,
    Bytes,
    Enum,
    Class,
    Struct,
    Interface,
    Object,
    Stream,
    DateTime,
    DateTimeOffset,
    TimeSpan,
    Guid,
    Decimal,
    Version,
    Nullable,
    Array,
    List,
    IEnumerable,
    ICollection,
    IList,
    IReadOnlyCollection,
    IReadOnlyList,
    IEnumerator,
    AnyDisposable,
    AnyEnumerator,
    AnyEnumerable,
    AnyCollection,
    AnyList,
    AnyArray,
    AnyArrayList,
    AnyCollectionBase,
    AnyReadOnlyCollectionBase,
}

/// <summary>Which way a parameter carries its value.</summary>
public enum Passing
{
    In,
    Ref,
    Out,
}
