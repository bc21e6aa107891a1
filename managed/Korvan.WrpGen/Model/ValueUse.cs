namespace Korvan.WrpGen.Model;

/// <summary>A managed type as some member uses it.</summary>
/// <param name="Kind">How it crosses.</param>
/// <param name="ManagedName">Its full managed name, of which the element hash is taken.</param>
/// <param name="CSharpName">Its name in C# source.</param>
public sealed record ValueUse(ValueKind Kind, string ManagedName, string CSharpName)
{
    /// <summary>The bound type of an enum, class, struct or interface.</summary>
    public TypeModel? Bound { get; init; }

    /// <summary>The element of a collection, the value of a nullable.</summary>
    public ValueUse? Element { get; init; }

    /// <summary>May be null by declaration.</summary>
    public bool IsOptional { get; init; }

    /// <summary>Has a null, which Python's None becomes.</summary>
    public bool IsReference => !IsValueType && Kind is not (ValueKind.Void or ValueKind.Nullable);

    /// <summary>A class whose results cross with their exact type.</summary>
    public bool IsMostDerived { get; init; }

    /// <summary>A stream that the callee holds on to when it has returned.</summary>
    public bool IsKept { get; init; }

    /// <summary>Value types, which pass as bits and have a nullable form.</summary>
    public bool IsValueType => Kind is ValueKind.Enum or ValueKind.Struct or ValueKind.DateTime
        or ValueKind.DateTimeOffset or ValueKind.TimeSpan or ValueKind.Guid or ValueKind.Decimal
        or ValueKind.DrawingColor or ValueKind.DrawingRectangle
        or (>= ValueKind.Bool and <= ValueKind.Char);

    /// <summary>Comes to Python, but can't be given to managed code: the sibling module of the type offers no
    /// way.</summary>
    public bool IsResultOnly => Kind == ValueKind.DrawingRectangle || (Element?.IsResultOnly ?? false);

    /// <summary>A closed generic collection, an array or a generic iterator.</summary>
    public bool IsTypedCollection => Kind is >= ValueKind.Array and <= ValueKind.IEnumerator;

    /// <summary>A framework's own collection, whose items are any values, or another of its interfaces that has a
    /// wrapper.</summary>
    public bool IsUntypedCollection => Kind is >= ValueKind.AnyDisposable and <= ValueKind.AnyReadOnlyCollectionBase;
}
