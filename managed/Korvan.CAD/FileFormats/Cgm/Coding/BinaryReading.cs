using System;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

internal static class BinaryReading
{
    internal static ParameterExchange Of(IBinaryReader reader) => throw new NotImplementedException(); // TODO
}
