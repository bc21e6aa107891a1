using System;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>A violation of the syntax. The caller, which knows the file, adds its name, the line and the
/// instance.</summary>
internal sealed class StepException(LoadDefectCode code, int offset, string message) : Exception(message)
{
    internal LoadDefectCode Code { get; } = code;

    internal int Offset { get; } = offset;
}
