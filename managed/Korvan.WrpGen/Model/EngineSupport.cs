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
    private static readonly HashSet<ValueKind> s_waitingArguments = [];

    private static readonly HashSet<ValueKind> s_waitingResults = [];

    public static bool Carries(ValueKind kind, Crossing crossing) =>
        !(crossing == Crossing.Argument ? s_waitingArguments : s_waitingResults).Contains(kind);

    /// <summary>Elements of typed collections have one form each way; collections in collections have none,
    /// but for arrays.</summary>
    public static bool CarriesElement(ValueKind kind) => kind is
        not (ValueKind.Nullable or ValueKind.Stream or (>= ValueKind.List and <= ValueKind.AnyReadOnlyCollectionBase));
}
