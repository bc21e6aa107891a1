using System;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Bits;

/// <summary>What is wrong with packed bits, or cannot be packed: who reads or writes them adds the section and the
/// object.</summary>
/// <param name="position">The bit, counted from the start of the bytes.</param>
/// <param name="cause">What is wrong and, where that helps, what was expected; without a period.</param>
internal sealed class DwgFault(long position, string cause) : Exception(cause)
{
    /// <summary>Gets the bit, counted from the start of the bytes.</summary>
    internal long Position { get; } = position;
}
