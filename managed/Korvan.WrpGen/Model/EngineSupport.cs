using System.Collections.Generic;

namespace Korvan.WrpGen.Model;

/// <summary>Which way a value crosses.</summary>
public enum Crossing
{
    Argument,
    Result,
}

/// <summary>
/// What the native engine has by name but not by body yet. A member that needs it is left out whole
/// and reported; taking an entry away is all it takes to bind those members.
/// </summary>
public static class EngineSupport
{
    private static readonly HashSet<ValueKind> s_waitingArguments =
    [
        ValueKind.AnyEnumerable, ValueKind.AnyCollection, ValueKind.AnyList, ValueKind.DateTime,
        ValueKind.DateTimeOffset, ValueKind.TimeSpan, ValueKind.Guid, ValueKind.Decimal, ValueKind.Version,
    ];

    private static readonly HashSet<ValueKind> s_waitingResults =
    [
        .. s_waitingArguments, ValueKind.Stream,
    ];

    /// <summary>Whether ref and out parameters are carried.</summary>
    public static bool CarriesReferences => false;

    public static bool Carries(ValueKind kind, Crossing crossing) =>
        !(crossing == Crossing.Argument ? s_waitingArguments : s_waitingResults).Contains(kind);

    /// <summary>
    /// Elements of typed collections cross both ways as one native word; an interface has a record of two.
    /// </summary>
    public static bool CarriesElement(ValueKind kind) => kind is
        not (ValueKind.Nullable or ValueKind.Stream or ValueKind.DateTime or ValueKind.DateTimeOffset
            or ValueKind.Guid or ValueKind.Decimal or ValueKind.Version or (>= ValueKind.List and <= ValueKind.AnyList));
}
