namespace Korvan.CAD.FileFormats.StepText;

/// <summary>The asterisk: an attribute that follows from others.</summary>
internal sealed class StepOmitted
{
    private StepOmitted()
    {
    }

    internal static StepOmitted Value { get; } = new();
}

/// <summary>An item of an enumeration, or a truth value: .T., .F., .U.</summary>
/// <param name="Name">The name without its points, in upper case.</param>
internal sealed record StepEnum(string Name)
{
    internal static StepEnum True { get; } = new("T");

    internal static StepEnum False { get; } = new("F");

    internal static StepEnum Unknown { get; } = new("U");
}

/// <summary>A reference to an instance by its number.</summary>
internal sealed record StepRef(long Id);

/// <summary>A value with the name of its type, such as IFCLABEL('x').</summary>
internal sealed record StepTyped(string Keyword, object? Value);

/// <summary>Bits, of which the first ones of the first byte may be no part.</summary>
/// <param name="Bytes">The bits, the last one in the lowest place of the last byte.</param>
/// <param name="BitCount">How many bits there are.</param>
internal sealed record StepBinary(byte[] Bytes, int BitCount);
