namespace Korvan.CAD.FileFormats.StepText;

/// <summary>The asterisk: a derived attribute.</summary>
internal sealed class StepOmitted
{
    private StepOmitted()
    {
    }

    internal static StepOmitted Value { get; } = new();
}

/// <summary>An enumeration item, or a logical value: .T., .F., .U.</summary>
/// <param name="Name">The name without its periods, in upper case.</param>
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

/// <summary>A binary value. The first bits of the first byte may be unused.</summary>
/// <param name="Bytes">The bits; the last one is the least significant bit of the last byte.</param>
/// <param name="BitCount">The number of bits.</param>
internal sealed record StepBinary(byte[] Bytes, int BitCount);
