namespace Korvan.WrpGen.Naming;

/// <summary>
/// The eight digits that tell namesakes apart: FNV-1a over the name in UTF-16, printed from its
/// lowest byte.
/// </summary>
public static class TypeHash
{
    private const uint OffsetBasis = 0x811C9DC5;
    private const uint Prime = 0x01000193;

    public static string Of(string name)
    {
        uint hash = OffsetBasis;
        foreach (char unit in name)
        {
            hash = (hash ^ (byte)unit) * Prime;
            hash = (hash ^ (byte)(unit >> 8)) * Prime;
        }
        return System.Buffers.Binary.BinaryPrimitives.ReverseEndianness(hash).ToString("X8");
    }
}
