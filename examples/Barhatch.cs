// barhatch.dll for the .NET Compact Framework 2.0 and later: every export and every record. Pointers are four bytes there,
// so the offsets are those of the device; on a desktop computer they are not.
//
// A boolean of the library is one byte, hence byte and not bool. Text inside a record is a pointer: let the record hold
// Marshal.StringToBSTR(text) during the call and free it afterwards with Marshal.FreeBSTR.
using System;
using System.Runtime.InteropServices;

namespace Barhatch
{
    [StructLayout(LayoutKind.Explicit, Size = 72)]
    public struct LinearBarcodeInfo
    {
        [FieldOffset(0)] public double height;
        [FieldOffset(8)] public double width;
        [FieldOffset(16)] public int type;
        [FieldOffset(20)] public IntPtr DataString;
        [FieldOffset(24)] public int HatchingType;
        [FieldOffset(32)] public double LineGap;
        [FieldOffset(40)] public byte InvertImage;
        [FieldOffset(48)] public double PrintRatio;
        [FieldOffset(56)] public byte QuietZone;
        [FieldOffset(60)] public int QuietZoneSize;
        [FieldOffset(64)] public int BorderWidth;
    }

    [StructLayout(LayoutKind.Explicit, Size = 56)]
    public struct DataMatrixBarcodeInfo
    {
        [FieldOffset(0)] public double height;
        [FieldOffset(8)] public int format;
        [FieldOffset(12)] public IntPtr DataString;
        [FieldOffset(16)] public int HatchingType;
        [FieldOffset(24)] public double LineGap;
        [FieldOffset(32)] public byte InvertImage;
        [FieldOffset(36)] public int MatrixSize;
        [FieldOffset(40)] public byte IsExpanding;
        [FieldOffset(41)] public byte QuietZone;
        [FieldOffset(44)] public int QuietZoneSize;
        [FieldOffset(48)] public int BorderWidth;
    }

    [StructLayout(LayoutKind.Explicit, Size = 12)]
    public struct TwoDStringResult
    {
        [FieldOffset(0)] public int numrows;
        [FieldOffset(4)] public int numcols;
        [FieldOffset(8)] public IntPtr data;
    }

    [StructLayout(LayoutKind.Explicit, Size = 32)]
    public struct FillBufferInfo
    {
        [FieldOffset(0)] public int FillingShapeType;
        [FieldOffset(4)] public int BufferLength;
        [FieldOffset(8)] public IntPtr FilledArray;
        [FieldOffset(16)] public double FillHeight;
        [FieldOffset(24)] public double FillWidth;
    }

    public static class Library
    {
        [DllImport("barhatch.dll")] public static extern void InitBarcode();
        [DllImport("barhatch.dll")] public static extern void SetBarcodeType(int type);
        [DllImport("barhatch.dll", CharSet = CharSet.Unicode)] public static extern void SetDataString(string text);
        [DllImport("barhatch.dll")] public static extern void SetModuleWidth(double moduleWidth);
        [DllImport("barhatch.dll")] public static extern void SetPrintRatio(double ratio);
        [DllImport("barhatch.dll")] public static extern void SetImageInversionMode(byte invert);
        [DllImport("barhatch.dll")] public static extern void SetHatchPattern(double lineGap, int hatchingType);
        [DllImport("barhatch.dll")] public static extern void SetBarcodeSize(double width, double height);
        [DllImport("barhatch.dll")] public static extern void SetBarcodeHeight(int height);
        [DllImport("barhatch.dll")] public static extern void SetCodeFormat(int format);
        [DllImport("barhatch.dll", EntryPoint = "?SetMatrixsize@@YAXW4_matrixSize@@@Z")]
        public static extern void SetMatrixsize(int size);
        [DllImport("barhatch.dll")] public static extern IntPtr GenerateBarcodeString();
        [DllImport("barhatch.dll")] public static extern IntPtr HatchBarcodeString(IntPtr moduleString);
        [DllImport("barhatch.dll")] public static extern IntPtr GenerateVectorizedBarcode();
        [DllImport("barhatch.dll")] public static extern IntPtr GenerateLinearBarcode(ref LinearBarcodeInfo info);
        [DllImport("barhatch.dll")] public static extern void FreeBarcodeData(IntPtr fill);
        [DllImport("barhatch.dll")] public static extern IntPtr TestStruct();
        [DllImport("barhatch.dll")] public static extern IntPtr GenerateDataMatrixBarcode(ref DataMatrixBarcodeInfo info);
        [DllImport("barhatch.dll")] public static extern void Free2DBarcodeStringResult(IntPtr grid);
        [DllImport("barhatch.dll")] public static extern void FreePdf417BarcodeStringResult(IntPtr grid);

        // The strokes of a fill buffer as doubles; the buffer goes back to the library. Null stays null.
        public static double[] TakeFill(IntPtr fill)
        {
            if (fill == IntPtr.Zero) return null;
            FillBufferInfo info = (FillBufferInfo)Marshal.PtrToStructure(fill, typeof(FillBufferInfo));
            double[] strokes = new double[info.BufferLength];
            Marshal.Copy(info.FilledArray, strokes, 0, strokes.Length);
            FreeBarcodeData(fill);
            return strokes;
        }
    }
}
