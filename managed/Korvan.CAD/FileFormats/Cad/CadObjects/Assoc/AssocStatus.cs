using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Assoc;

/// <summary>The status of an associative action or dependency.</summary>
[PythonEnum(EnumKind.Flag)]
public enum AssocStatus
{
    /// <summary>Evaluated: nothing has changed since.</summary>
    IsUpToDate = 0,

    /// <summary>An object that it depends on was changed.</summary>
    ChangedDirectly = 1,

    /// <summary>An object was changed on which one depends that it depends on.</summary>
    ChangedTransitively = 2,

    /// <summary>Changed, but not to be evaluated.</summary>
    ChangedNoDifference = 3,

    /// <summary>The last evaluation failed.</summary>
    FailedToEvaluate = 4,

    /// <summary>To be erased.</summary>
    Erased = 5,

    /// <summary>Not to be evaluated.</summary>
    Suppressed = 6,

    /// <summary>Dependencies cannot be resolved.</summary>
    Unresolved = 7,
}
