using System;
using System.Buffers.Binary;
using System.Security.Cryptography;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.TimeProvision;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>A text and a time under a password, as bytes: salt, nonce, tag, and what is encrypted.</summary>
internal sealed record WatermarkSeal(string Text, DateTime? Time)
{
    private const int SaltLength = 16;
    private const int NonceLength = 12;
    private const int TagLength = 16;
    private const int HeadLength = SaltLength + NonceLength + TagLength;
    private const int TimeLength = 9;
    private const int Iterations = 100_000;
    private const int MostText = 1000;

    internal static byte[] Close(string text, string password, TimeProvisionType time)
    {
        byte[] letters = Encoding.UTF8.GetBytes(text);
        if (letters.Length is 0 or > MostText)
        {
            throw new ArgumentException(
                $"The text of a watermark has 1 to {MostText} bytes of UTF-8, not {letters.Length}.");
        }

        OpenSsl.Require();
        byte[] plain = [.. TimeBytes(time), .. letters];
        byte[] seal = new byte[HeadLength + plain.Length];
        RandomNumberGenerator.Fill(seal.AsSpan(0, SaltLength + NonceLength));
        using AesGcm cipher = Cipher(seal, password);
        cipher.Encrypt(Nonce(seal), plain, seal.AsSpan(HeadLength), seal.AsSpan(HeadLength - TagLength, TagLength));
        return seal;
    }

    /// <summary>The content, or nothing when the password is another or the bytes were changed.</summary>
    internal static WatermarkSeal? Open(byte[] seal, string password)
    {
        if (seal.Length <= HeadLength + TimeLength || seal.Length > HeadLength + TimeLength + MostText)
        {
            return null;
        }

        OpenSsl.Require();
        byte[] plain = new byte[seal.Length - HeadLength];
        using AesGcm cipher = Cipher(seal, password);
        try
        {
            cipher.Decrypt(Nonce(seal), seal.AsSpan(HeadLength), seal.AsSpan(HeadLength - TagLength, TagLength), plain);
        }
        catch (AuthenticationTagMismatchException)
        {
            return null;
        }

        return new WatermarkSeal(Encoding.UTF8.GetString(plain, TimeLength, plain.Length - TimeLength), TimeOf(plain));
    }

    private static ReadOnlySpan<byte> Nonce(byte[] seal) => seal.AsSpan(SaltLength, NonceLength);

    private static AesGcm Cipher(byte[] seal, string password)
    {
        Verify.NotEmpty(password);
        byte[] key = Rfc2898DeriveBytes.Pbkdf2(password, seal.AsSpan(0, SaltLength), Iterations, HashAlgorithmName.SHA256, 32);
        return new AesGcm(key, TagLength);
    }

    private static byte[] TimeBytes(TimeProvisionType time)
    {
        byte[] bytes = new byte[TimeLength];
        bytes[0] = (byte)time;
        long ticks = time switch
        {
            TimeProvisionType.None => 0,
            TimeProvisionType.Utc => DateTime.UtcNow.Ticks,
            TimeProvisionType.Local => DateTime.Now.Ticks,
            _ => throw Verify.OutOfRange(nameof(time), time, "One clock states the time, or none."),
        };
        BinaryPrimitives.WriteInt64LittleEndian(bytes.AsSpan(1), ticks);
        return bytes;
    }

    private static DateTime? TimeOf(byte[] plain)
    {
        long ticks = BinaryPrimitives.ReadInt64LittleEndian(plain.AsSpan(1));
        bool isTime = ticks > 0 && ticks <= DateTime.MaxValue.Ticks;
        return (TimeProvisionType)plain[0] switch
        {
            TimeProvisionType.Utc when isTime => new DateTime(ticks, DateTimeKind.Utc),
            TimeProvisionType.Local when isTime => new DateTime(ticks, DateTimeKind.Local),
            _ => null,
        };
    }
}
