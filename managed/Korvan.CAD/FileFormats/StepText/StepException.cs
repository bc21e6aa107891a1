using System;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>A place in a file that breaks the rules of the format. It is worded with line and instance by whoever
/// knows the file.</summary>
internal sealed class StepException(int offset, string message) : Exception(message)
{
    internal int Offset { get; } = offset;
}
