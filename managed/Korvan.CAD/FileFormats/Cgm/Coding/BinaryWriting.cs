using System;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

internal static class BinaryWriting
{
    internal static ParameterExchange Of(IBinaryWriter writer) => throw new NotImplementedException(); // TODO
}
