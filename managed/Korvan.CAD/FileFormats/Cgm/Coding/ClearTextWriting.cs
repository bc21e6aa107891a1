using System;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

internal static class ClearTextWriting
{
    internal static ParameterExchange Of(IClearTextWriter writer) => throw new NotImplementedException(); // TODO
}
